#include "oryutils/readers/ArquivoReg.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Unidades.hpp"
#include "oryutils/readers/DadoReg.hpp"
#include "oryutils/readers/LeitorReg.hpp"
#include "oryutils/readers/LinhasReg.hpp"

#include <algorithm>
#include <map>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CCabecalho = u"Windows Registry Editor Version 5.00";
constexpr std::u16string_view CFimDeLinha = u"\r\n";
constexpr std::string_view CMarca = "\xFF\xFE";

bool EhIgualOuAbaixo(std::u16string_view ACaminho, std::u16string_view AChave) {
    if (ACaminho.size() > AChave.size() && ACaminho[AChave.size()] != u'\\') return false;
    return IguaisIgnorandoCaixa(ACaminho.substr(0, AChave.size()), AChave);
}

bool EhRaiz(std::u16string_view AChave) { return AChave.find(u'\\') == AChave.npos; }

std::u16string_view BuscarChaveAcima(std::u16string_view AChave) { return AChave.substr(0, AChave.rfind(u'\\')); }

// The first part of ACaminho below AChave; empty when it is AChave itself.
std::u16string_view BuscarParteAbaixo(std::u16string_view ACaminho, std::u16string_view AChave) {
    if (ACaminho.size() == AChave.size()) return {};
    const std::u16string_view resto = ACaminho.substr(AChave.size() + 1);
    return resto.substr(0, resto.find(u'\\'));
}

// Names under which something is kept once, ignoring case; the first spelling stays.
class TNomes {
public:
    void Incluir(std::u16string_view ANome) { FNomes.try_emplace(MinusculaDe(ANome), ANome); }
    void Excluir(std::u16string_view ANome) { FNomes.erase(MinusculaDe(ANome)); }
    void Limpar() { FNomes.clear(); }
    std::vector<std::u16string> Listar() const {
        std::vector<std::u16string> lista;
        for (const auto& [minuscula, nome] : FNomes) lista.push_back(nome);
        return lista;
    }

private:
    std::map<std::u16string, std::u16string> FNomes;
};

// True when the last line of ATexto asks to go on in the next.
bool TerminaEmEmenda(std::u16string_view ATexto) {
    if (ATexto.ends_with(u'\n')) ATexto.remove_suffix(1);
    if (ATexto.ends_with(u'\r')) ATexto.remove_suffix(1);
    while (!ATexto.empty() && EhEspaco(ATexto.back())) ATexto.remove_suffix(1);
    return ATexto.ends_with(u'\\');
}

// Copies AOrigem without the lines that are taken out, in their order. A broken line that asks to go on gets an empty
// one behind it instead, so that it does not join what comes next.
class TRecorte {
public:
    explicit TRecorte(const std::u16string& AOrigem) : FOrigem(AOrigem) {}
    void Retirar(std::size_t AInicio, std::size_t AFim) {
        FResultado.append(FOrigem, FCopiado, AInicio - FCopiado);
        if (TerminaEmEmenda(FResultado)) FResultado += CFimDeLinha;
        FCopiado = AFim;
    }
    std::u16string Concluir() && {
        FResultado.append(FOrigem, FCopiado);
        return std::move(FResultado);
    }

private:
    const std::u16string& FOrigem;
    std::u16string FResultado{};
    std::size_t FCopiado = 0;
};

}  // namespace

// What the whole text says of one key and one value.
struct TArquivoReg::TAchado {
    bool ExisteChave = false;
    std::optional<TLinhaReg> Valor{};
    std::optional<std::size_t> FimDaSecao{};  // where the next value of the key goes
};

TArquivoReg::TArquivoReg() : FTexto(std::u16string(CCabecalho).append(CFimDeLinha)) {}

std::optional<TArquivoReg> TArquivoReg::DeBytes(std::string_view ABytes) {
    if (ABytes.size() % 2 != 0 || !ABytes.starts_with(CMarca)) return {};
    TArquivoReg arquivo;
    arquivo.FTexto = UnidadesDeBytes(ABytes.substr(CMarca.size()));
    const std::u16string_view texto = arquivo.FTexto;
    if (!texto.starts_with(CCabecalho)) return {};
    const std::u16string_view resto = texto.substr(CCabecalho.size(), BuscarProximaLinha(texto, 0) - CCabecalho.size());
    if (resto.find_first_not_of(u" \t\r\n") != resto.npos) return {};
    return arquivo;
}

std::string TArquivoReg::ParaBytes() const { return std::string(CMarca).append(BytesDeUnidades(FTexto)); }

TArquivoReg::TAchado TArquivoReg::Procurar(std::u16string_view AChave, std::u16string_view AValor) const {
    TAchado achado;
    bool naChave = false;
    TLeitorReg leitor(FTexto);
    for (TLinhaReg linha; leitor.Ler(linha);) {
        switch (linha.Elemento) {
            case elChave:
                naChave = linha.Nome.size() == AChave.size() && IguaisIgnorandoCaixa(linha.Nome, AChave);
                if (naChave || EhIgualOuAbaixo(linha.Nome, AChave)) achado.ExisteChave = true;
                break;
            case elChaveApagada:
                naChave = false;
                if (EhIgualOuAbaixo(AChave, linha.Nome)) achado = {};
                break;
            case elChaveIlegivel:
                naChave = false;
                break;
            case elValor:
                if (naChave && EscapadoDizNome(linha.Nome, AValor)) achado.Valor = linha;
                break;
            case elValorApagado:
                if (naChave && EscapadoDizNome(linha.Nome, AValor)) achado.Valor.reset();
                break;
            case elLinhaEmBranco:
            case elOutraLinha:
                break;
        }
        if (naChave && linha.Elemento != elLinhaEmBranco) achado.FimDaSecao = linha.Fim;
    }
    achado.ExisteChave |= EhRaiz(AChave);
    return achado;
}

bool TArquivoReg::ExisteChave(std::u16string_view AChave) const { return Procurar(AChave, {}).ExisteChave; }

std::optional<TDadoRegistro> TArquivoReg::Ler(std::u16string_view AChave, std::u16string_view AValor) const {
    const auto valor = Procurar(AChave, AValor).Valor;
    if (!valor) return {};
    return LerDadoReg(std::u16string_view(FTexto).substr(valor->InicioDado, valor->FimDado - valor->InicioDado));
}

std::vector<std::u16string> TArquivoReg::ListarSubchaves(std::u16string_view AChave) const {
    TNomes nomes;
    TLeitorReg leitor(FTexto);
    for (TLinhaReg linha; leitor.Ler(linha);) {
        if (linha.Elemento != elChave && linha.Elemento != elChaveApagada) continue;
        if (linha.Elemento == elChaveApagada && EhIgualOuAbaixo(AChave, linha.Nome)) nomes.Limpar();
        if (!EhIgualOuAbaixo(linha.Nome, AChave)) continue;
        const std::u16string_view parte = BuscarParteAbaixo(linha.Nome, AChave);
        if (parte.empty()) continue;
        if (linha.Elemento == elChave)
            nomes.Incluir(parte);
        else if (AChave.size() + 1 + parte.size() == linha.Nome.size())
            nomes.Excluir(parte);
    }
    return nomes.Listar();
}

std::vector<std::u16string> TArquivoReg::ListarValores(std::u16string_view AChave) const {
    TNomes nomes;
    bool naChave = false;
    TLeitorReg leitor(FTexto);
    for (TLinhaReg linha; leitor.Ler(linha);) {
        switch (linha.Elemento) {
            case elChave:
                naChave = IguaisIgnorandoCaixa(linha.Nome, AChave);
                break;
            case elChaveApagada:
                naChave = false;
                if (EhIgualOuAbaixo(AChave, linha.Nome)) nomes.Limpar();
                break;
            case elChaveIlegivel:
                naChave = false;
                break;
            case elValor:
                if (naChave) nomes.Incluir(RetirarEscapes(linha.Nome));
                break;
            case elValorApagado:
                if (naChave) nomes.Excluir(RetirarEscapes(linha.Nome));
                break;
            case elLinhaEmBranco:
            case elOutraLinha:
                break;
        }
    }
    return nomes.Listar();
}

void TArquivoReg::AnexarSecao(std::u16string_view AChave) {
    if (!FTexto.ends_with(u'\n') && !FTexto.ends_with(u'\r')) FTexto += CFimDeLinha;
    FTexto.append(CFimDeLinha).append(u"[").append(AChave).append(u"]").append(CFimDeLinha);
}

// The keys above it get sections of their own, as an export has them.
void TArquivoReg::CriarChave(std::u16string_view AChave) {
    for (std::size_t fim = AChave.find(u'\\'); fim < AChave.size();) {
        fim = std::min(AChave.find(u'\\', fim + 1), AChave.size());
        if (!ExisteChave(AChave.substr(0, fim))) AnexarSecao(AChave.substr(0, fim));
    }
}

void TArquivoReg::Gravar(std::u16string_view AChave, std::u16string_view AValor, const TDadoRegistro& ADado) {
    const TAchado achado = Procurar(AChave, AValor);
    std::u16string novo;
    if (achado.Valor) {
        AnexarDadoReg(novo, ADado, achado.Valor->InicioDado - achado.Valor->Inicio);
        FTexto.replace(achado.Valor->InicioDado, achado.Valor->FimDado - achado.Valor->InicioDado, novo);
        return;
    }
    if (!achado.FimDaSecao) {
        CriarChave(AChave);
        // A root, and a key that only another below it implies, has no section yet.
        if (!Procurar(AChave, AValor).FimDaSecao) AnexarSecao(AChave);
    }
    const std::size_t posicao = *Procurar(AChave, AValor).FimDaSecao;
    if (posicao == FTexto.size() && !FTexto.ends_with(u'\n') && !FTexto.ends_with(u'\r')) novo += CFimDeLinha;
    const std::size_t inicio = novo.size();
    if (AValor.empty())
        novo += u'@';
    else
        AnexarTextoReg(novo, AValor);
    novo += u'=';
    AnexarDadoReg(novo, ADado, novo.size() - inicio);
    FTexto.insert(posicao, novo += CFimDeLinha);
}

bool TArquivoReg::ExcluirValor(std::u16string_view AChave, std::u16string_view AValor) {
    if (!Procurar(AChave, AValor).Valor) return false;
    TRecorte recorte(FTexto);
    bool naChave = false;
    TLeitorReg leitor(FTexto);
    for (TLinhaReg linha; leitor.Ler(linha);) {
        if (linha.Elemento == elChave) naChave = IguaisIgnorandoCaixa(linha.Nome, AChave);
        if (linha.Elemento == elChaveApagada || linha.Elemento == elChaveIlegivel) naChave = false;
        if (linha.Elemento == elValor && naChave && EscapadoDizNome(linha.Nome, AValor))
            recorte.Retirar(linha.Inicio, linha.Fim);
    }
    FTexto = std::move(recorte).Concluir();
    return true;
}

bool TArquivoReg::ExcluirChave(std::u16string_view AChave) {
    if (EhRaiz(AChave) || !ExisteChave(AChave)) return false;
    TRecorte recorte(FTexto);
    bool naChave = false;
    TLeitorReg leitor(FTexto);
    for (TLinhaReg linha; leitor.Ler(linha);) {
        if (linha.Elemento == elChave) naChave = EhIgualOuAbaixo(linha.Nome, AChave);
        if (linha.Elemento == elChaveApagada || linha.Elemento == elChaveIlegivel) naChave = false;
        if (naChave) recorte.Retirar(linha.Inicio, linha.Fim);
    }
    FTexto = std::move(recorte).Concluir();
    // A key above it that only this one made stays as well.
    CriarChave(BuscarChaveAcima(AChave));
    return true;
}

}  // namespace OryUtils::Interno
