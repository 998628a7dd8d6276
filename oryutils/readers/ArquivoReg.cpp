#include "oryutils/readers/ArquivoReg.hpp"

#include "oryutils/characters/Caixa.hpp"
#include "oryutils/characters/Unidades.hpp"
#include "oryutils/readers/DadoReg.hpp"
#include "oryutils/readers/NomesRegistro.hpp"

#include <algorithm>
#include <utility>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CCabecalho = u"Windows Registry Editor Version 5.00";
constexpr std::string_view CMarca = "\xFF\xFE";

// Takes the first part of a path away and gives it.
std::u16string_view RetirarParte(std::u16string_view& ACaminho) noexcept {
    const std::u16string_view parte = ACaminho.substr(0, ACaminho.find(u'\\'));
    ACaminho.remove_prefix(std::min(parte.size() + 1, ACaminho.size()));
    return parte;
}

// The key of a line in brackets. Null when the line takes a key away or, as it then says, names none.
TChaveReg* LerChave(std::u16string_view ALinha, TArquivoReg& AArquivo) {
    // Names may hold brackets too: the last one closes.
    const std::size_t fim = ALinha.rfind(u']');
    const bool fechou = fim != ALinha.npos && TCursorReg(ALinha.substr(fim + 1)).SoRestaComentario();
    std::u16string_view nome = fechou ? ALinha.substr(1, fim - 1) : std::u16string_view();
    const bool apagada = nome.starts_with(u'-');
    if (apagada) nome.remove_prefix(1);
    if (nome.empty() || NormalizarCaminho(nome) != nome || !EhCaminhoValido(nome)) {
        AArquivo.PerdeuLinhas = true;
        return nullptr;
    }
    if (!apagada) return &AArquivo.Topo.Criar(nome);
    AArquivo.Topo.Excluir(nome);
    return nullptr;
}

// Reads "name"=data or @=data with the end of its line. False, with the cursor anywhere, for anything else.
bool LeuValor(TCursorReg& ACursor, TChaveReg& AChave) {
    const auto nome = ACursor.Aceitar(u"@") ? std::u16string() : LerTextoReg(ACursor);
    ACursor.PularEspacos();
    if (!nome || !ACursor.Aceitar(u"=")) return false;
    ACursor.PularEspacos();
    const bool apagado = ACursor.Aceitar(u"-");
    auto dado = apagado ? std::nullopt : LerDadoReg(ACursor);
    if ((!apagado && !dado) || !ACursor.SoRestaComentario()) return false;
    ACursor.LerLinha();
    // A file that the library wrote has the names in order: each comes behind the last one.
    if (dado)
        AChave.Valores.insert_or_assign(AChave.Valores.end(), *nome, *std::move(dado));
    else
        AChave.Valores.erase(*nome);
    return true;
}

// ACaminho is the full path of AChave; it is the same again at the end.
void AnexarChave(std::u16string& ATexto, const TChaveReg& AChave, std::u16string& ACaminho) {
    // A key without values needs no line of its own when others below it tell that it is there.
    if (!AChave.Valores.empty() || AChave.Subchaves.empty()) ATexto.append(u"\r\n[").append(ACaminho).append(u"]\r\n");
    for (const auto& [nome, dado] : AChave.Valores) {
        const std::size_t inicio = ATexto.size();
        if (nome.empty())
            ATexto += u'@';
        else
            AnexarTextoReg(ATexto, nome);
        ATexto += u'=';
        AnexarDadoReg(ATexto, dado, inicio);
        ATexto += u"\r\n";
    }
    const std::size_t tamanho = ACaminho.size();
    for (const auto& [nome, subchave] : AChave.Subchaves) {
        ACaminho.append(u"\\").append(nome);
        AnexarChave(ATexto, *subchave, ACaminho);
        ACaminho.resize(tamanho);
    }
}

}  // namespace

bool TOrdemSemCaixa::operator()(std::u16string_view AUm, std::u16string_view AOutro) const noexcept {
    const auto igual = [](char16_t a, char16_t b) { return a == b || MinusculaDe(a) == MinusculaDe(b); };
    const auto [um, outro] = std::ranges::mismatch(AUm, AOutro, igual);
    if (um == AUm.end() || outro == AOutro.end()) return outro != AOutro.end();
    return MinusculaDe(*um) < MinusculaDe(*outro);
}

TChaveReg* TChaveReg::Buscar(std::u16string_view ACaminho) noexcept {
    TChaveReg* chave = this;
    while (chave && !ACaminho.empty()) {
        const auto abaixo = chave->Subchaves.find(RetirarParte(ACaminho));
        chave = abaixo == chave->Subchaves.end() ? nullptr : abaixo->second.get();
    }
    return chave;
}

TChaveReg& TChaveReg::Criar(std::u16string_view ACaminho) {
    TChaveReg* chave = this;
    while (!ACaminho.empty()) {
        auto& abaixo = chave->Subchaves[std::u16string(RetirarParte(ACaminho))];
        if (!abaixo) abaixo = std::make_unique<TChaveReg>();
        chave = abaixo.get();
    }
    return *chave;
}

bool TChaveReg::Excluir(std::u16string_view ACaminho) {
    const std::size_t barra = ACaminho.rfind(u'\\');
    TChaveReg* acima = Buscar(barra == ACaminho.npos ? std::u16string_view() : ACaminho.substr(0, barra));
    return acima && acima->Subchaves.erase(std::u16string(ACaminho.substr(barra + 1))) > 0;
}

std::optional<TArquivoReg> LerArquivoReg(std::string_view ABytes) {
    if (ABytes.size() % 2 != 0 || !ABytes.starts_with(CMarca)) return {};
    const std::u16string texto = UnidadesDeBytes(ABytes.substr(CMarca.size()));
    TCursorReg cursor(texto);
    if (!cursor.Aceitar(CCabecalho)) return {};
    cursor.PularEspacos();
    if (!cursor.EstahNoFimDaLinha()) return {};
    TArquivoReg arquivo;
    TChaveReg* chave = nullptr;  // the values that follow are its own
    while (!cursor.Acabou()) {
        cursor.PularEspacos();
        const TCursorReg inicio = cursor;
        if (cursor.SoRestaComentario()) {
            cursor.LerLinha();
        } else if (cursor.Ver() == u'[') {
            chave = LerChave(cursor.LerLinha(), arquivo);
        } else if (!chave || !LeuValor(cursor, *chave)) {
            cursor = inicio;
            cursor.LerLinha();
            arquivo.PerdeuLinhas = true;
        }
    }
    return arquivo;
}

std::string EscreverArquivoReg(const TChaveReg& ATopo) {
    std::u16string texto(CCabecalho);
    texto += u"\r\n";
    for (const auto& [nome, raiz] : ATopo.Subchaves) {
        std::u16string caminho = nome;
        AnexarChave(texto, *raiz, caminho);
    }
    return std::string(CMarca).append(BytesDeUnidades(texto));
}

}  // namespace OryUtils::Interno
