#include "conferir/Conferencia.hpp"

#include "oryutils/characters/Utf.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace Ory {
namespace {

// In the order of TVeredito.
constexpr std::array<std::string_view, 3> CVereditos{"vazio", "valido", "invalido"};
constexpr std::size_t CMaisColunas = 65536;
constexpr std::size_t CMaisMostrados = 1000;  // kept at most, whatever is asked for
constexpr std::size_t CBlocoDaSaida = std::size_t{64} << 10;

struct TColunaConferida {
    std::size_t Posicao;
    const TTipoColuna* Tipo;
    std::string Nome;  // bytes of the file
};

/// What there is to check: read off the header and the options.
struct TPlano {
    std::vector<TColunaConferida> Colunas{};
    std::optional<std::size_t> PosicaoDaUf{};
    std::string Uf{};
    std::size_t CamposLidos = 0;  // up to the last one of interest
};

/// The position of the column that the caller named by header or by position.
std::size_t LocalizarColuna(const std::vector<std::string>& ACabecalho, const std::string& ANome, bool ASemCabecalho) {
    if (!ASemCabecalho)
        for (std::size_t i = 0; i < ACabecalho.size(); ++i)
            if (EhMesmoCabecalho(ACabecalho[i], ANome)) return i;
    // A position may have zeros on its left.
    const std::size_t inicio = std::min(ANome.find_first_not_of('0'), ANome.size());
    for (std::size_t i = 0; i < ACabecalho.size(); ++i)
        if (ANome.substr(inicio) == std::to_string(i + 1)) return i;
    throw EFalha("não há coluna \"" + ANome + "\" no arquivo");
}

std::string JuntarNomes(const std::vector<std::string>& ANomes) {
    constexpr std::size_t CMaisNomes = 20;
    std::string lista;
    for (std::size_t i = 0; i < std::min(ANomes.size(), CMaisNomes); ++i)
        lista += (i ? ", " : "") + DecodificarParaUtf8(ANomes[i], coDetectar);
    return ANomes.size() > CMaisNomes ? lista + ", ..." : lista;
}

/// Control characters in a header tell that the delimiter is another one, or that the file is no text. Line ends may
/// stand in quotes.
void RecusarControles(const std::vector<std::string>& ACabecalho) {
    const auto ehControle = [](char c) { return c >= 0 && c < ' ' && c != '\r' && c != '\n'; };
    for (const std::string& nome : ACabecalho)
        if (std::ranges::any_of(nome, ehControle))
            throw EFalha("o cabeçalho tem caracteres de controle" +
                         std::string(nome.find('\t') == nome.npos
                                         ? "; o arquivo é um texto?"
                                         : "; se as colunas se separam por tabulação, --delimitador tab"));
}

TPlano Planejar(const std::vector<std::string>& ACabecalho, const TOpcoesDeConferencia& AOpcoes) {
    if (!AOpcoes.SemCabecalho) RecusarControles(ACabecalho);
    std::vector<TPapelDaColuna> papeis(ACabecalho.size());
    if (!AOpcoes.SemCabecalho) std::ranges::transform(ACabecalho, papeis.begin(), ReconhecerCabecalho);
    for (const auto& [nome, papel] : AOpcoes.Colunas)
        papeis[LocalizarColuna(ACabecalho, nome, AOpcoes.SemCabecalho)] = papel;

    TPlano plano{.Uf = AOpcoes.Uf};
    bool pedeUf = false;
    for (std::size_t i = 0; i < papeis.size(); ++i) {
        if (papeis[i].EhUf && !plano.PosicaoDaUf && plano.Uf.empty()) plano.PosicaoDaUf = i;
        if (!papeis[i].Tipo) continue;
        pedeUf = pedeUf || papeis[i].Tipo->PedeUf;
        plano.Colunas.push_back({i, papeis[i].Tipo, ACabecalho[i]});
        plano.CamposLidos = i + 1;
    }
    if (plano.PosicaoDaUf) plano.CamposLidos = std::max(plano.CamposLidos, *plano.PosicaoDaUf + 1);
    if (plano.Colunas.empty())
        throw EFalha("nenhuma coluna para conferir" +
                     (AOpcoes.SemCabecalho ? std::string() : " entre: " + JuntarNomes(ACabecalho)) +
                     "; indique com --coluna nome=tipo");
    if (pedeUf && !plano.PosicaoDaUf && plano.Uf.empty())
        throw EFalha("há coluna de inscrição estadual mas não de UF; indique com --coluna nome=uf ou --uf");
    return plano;
}

/// Collects the bytes of an output and hands them on in blocks.
class TSaidaEmBlocos {
public:
    explicit TSaidaEmBlocos(TSaida& ASaida) : FSaida(ASaida) {}
    std::string& GetTexto() noexcept { return FTexto; }
    void Descarregar(std::size_t AMenor = 1) {
        if (FTexto.size() < AMenor) return;
        FSaida.Escrever(FTexto);
        FTexto.clear();
    }

private:
    TSaida& FSaida;
    std::string FTexto{};
};

/// Checks the records of a file one by one, sums up in AResumo and writes each again where there is an output.
class TConferente {
public:
    TConferente(const TPlano& APlano, const TLeitorDeRegistros& ALeitor, TSaida* ASaida, std::size_t AMostrar,
                TResumo& AResumo)
        : FPlano(APlano), FLeitor(ALeitor), FMostrar(std::min(AMostrar, CMaisMostrados)), FResumo(AResumo) {
        if (!ASaida) return;
        FSaida.emplace(*ASaida);
        if (FLeitor.PossuiMarcaUtf8()) FSaida->GetTexto() += "\xEF\xBB\xBF";
        FSaida->GetTexto() += FLeitor.GetLinhaDoDelimitador();
    }

    void LerCabecalho() {
        ObservarCodificacao();
        if (!FSaida) return;
        FSaida->GetTexto() += FLeitor.GetTexto();
        for (const TColunaConferida& coluna : FPlano.Colunas)
            for (const std::string_view sufixo : {"_veredito", "_formatado"})
                Acrescentar(coluna.Nome + std::string(sufixo));
        FSaida->GetTexto() += FLeitor.GetFimDeLinha();
    }

    void ConferirRegistro() {
        ObservarCodificacao();
        // A blank line in a file of several columns is no record; in a file of one it is an empty field.
        if (FLeitor.GetTexto().empty() && FResumo.Campos > 1) {
            ++FResumo.LinhasEmBranco;
            if (FSaida) FSaida->GetTexto() += FLeitor.GetFimDeLinha();
            return;
        }
        ++FResumo.Registros;
        ContarCampos();
        if (FSaida) {
            FSaida->GetTexto() += FLeitor.GetTexto();
            for (std::size_t i = FLeitor.GetTotalDeCampos(); i < FResumo.Campos; ++i)
                FSaida->GetTexto() += FLeitor.GetDelimitador();
        }
        const std::string_view uf = FPlano.PosicaoDaUf ? BuscarCampo(*FPlano.PosicaoDaUf) : FPlano.Uf;
        for (std::size_t i = 0; i < FPlano.Colunas.size(); ++i)
            ConferirCampo(FPlano.Colunas[i], FResumo.Colunas[i], uf);
        if (FSaida) {
            FSaida->GetTexto() += FLeitor.GetFimDeLinha();
            FSaida->Descarregar(CBlocoDaSaida);
        }
    }

    void Terminar() {
        if (FSaida) FSaida->Descarregar();
    }
    /// That of the records so far: Windows-1252 when one of them is no UTF-8.
    TCodificacao GetCodificacao() const noexcept { return FEhUtf8 ? coUtf8 : coWindows1252; }

private:
    void ObservarCodificacao() { FEhUtf8 = FEhUtf8 && OryUtils::EhUtf8Valido(FLeitor.GetTexto()); }

    std::string_view BuscarCampo(std::size_t APosicao) const {
        const auto campos = FLeitor.GetCampos();
        return APosicao < campos.size() ? campos[APosicao] : std::string_view();
    }

    void ContarCampos() {
        if (FLeitor.GetTotalDeCampos() == FResumo.Campos) return;
        ++FResumo.Desiguais;
        if (FResumo.PrimeirosDesiguais.size() < FMostrar)
            FResumo.PrimeirosDesiguais.push_back({FLeitor.GetLinha(), FLeitor.GetTotalDeCampos()});
    }

    void ConferirCampo(const TColunaConferida& AColuna, TResumoDeColuna& AResumo, std::string_view AUf) {
        const std::string_view valor = BuscarCampo(AColuna.Posicao);
        FFormatado.clear();
        const TVeredito veredito = Conferir(*AColuna.Tipo, valor, AUf, FSaida ? &FFormatado : nullptr);
        switch (veredito) {
            case veVazio:
                ++AResumo.Vazios;
                break;
            case veValido:
                ++AResumo.Validos;
                break;
            case veInvalido:
                ++AResumo.Invalidos;
                if (AResumo.Primeiros.size() < FMostrar)
                    AResumo.Primeiros.push_back(
                        {FLeitor.GetLinha(), std::string(valor.substr(0, CMaiorValorMostrado))});
                break;
        }
        if (!FSaida) return;
        (FSaida->GetTexto() += FLeitor.GetDelimitador()) += CVereditos[veredito];
        Acrescentar(FFormatado);
    }

    /// One more field of the record that is being written.
    void Acrescentar(std::string_view ACampo) {
        FSaida->GetTexto() += FLeitor.GetDelimitador();
        EscreverCampo(FSaida->GetTexto(), ACampo, FLeitor.GetDelimitador());
    }

    const TPlano& FPlano;
    const TLeitorDeRegistros& FLeitor;
    std::optional<TSaidaEmBlocos> FSaida{};
    std::size_t FMostrar;
    TResumo& FResumo;
    bool FEhUtf8 = true;
    std::string FFormatado{};
};

}  // namespace

bool TResumo::EstahTudoValido() const noexcept {
    return !EstahVazio() && std::ranges::all_of(Colunas, [](const TResumoDeColuna& c) { return c.Invalidos == 0; });
}

TResumo ConferirCsv(TEntrada& AEntrada, TSaida* ASaida, const TOpcoesDeConferencia& AOpcoes) {
    TLeitorDeRegistros leitor(AEntrada, AOpcoes.Delimitador, CMaisColunas, AOpcoes.Limites);
    if (!leitor.Proximo()) throw EFalha("o arquivo está vazio");
    if (leitor.GetTotalDeCampos() > CMaisColunas) throw EFalha("mais de " + std::to_string(CMaisColunas) + " colunas");
    const TPlano plano = Planejar({leitor.GetCampos().begin(), leitor.GetCampos().end()}, AOpcoes);

    TResumo resumo{.PossuiMarcaUtf8 = leitor.PossuiMarcaUtf8(),
                   .Delimitador = leitor.GetDelimitador(),
                   .Campos = leitor.GetTotalDeCampos(),
                   .VazioVale = AOpcoes.VazioVale};
    for (std::size_t i = 0, proxima = 0; i < leitor.GetCampos().size(); ++i) {
        const std::string nome = AOpcoes.SemCabecalho ? std::to_string(i + 1)
                                                      : DecodificarParaUtf8(leitor.GetCampos()[i], AOpcoes.Codificacao);
        if (proxima < plano.Colunas.size() && plano.Colunas[proxima].Posicao == i)
            resumo.Colunas.push_back({.Nome = nome, .Tipo = plano.Colunas[proxima++].Tipo});
        else if (plano.PosicaoDaUf != i)
            resumo.NaoConferidas.push_back(nome);
    }
    TConferente conferente(plano, leitor, ASaida, AOpcoes.Mostrar, resumo);
    if (AOpcoes.SemCabecalho) {
        conferente.ConferirRegistro();
    } else {
        conferente.LerCabecalho();
    }
    leitor.SetMaximoDeCampos(plano.CamposLidos);
    while (leitor.Proximo()) {
        conferente.ConferirRegistro();
        if (AOpcoes.AoProgredir) AOpcoes.AoProgredir(leitor.GetBytesLidos());
    }
    conferente.Terminar();
    resumo.Codificacao = AOpcoes.Codificacao == coDetectar ? conferente.GetCodificacao() : AOpcoes.Codificacao;
    return resumo;
}

TResumoDeVereditos EscreverVereditos(TEntrada& AEntrada, TSaida& ASaida, const TTipoColuna& ATipo,
                                     const TOpcoesDeConferencia& AOpcoes) {
    TLeitorDeLinhas linhas(AEntrada, AOpcoes.Limites.Registro);
    TSaidaEmBlocos saida(ASaida);
    linhas.GetBytes().AoEsperar([&] { saida.Descarregar(); });
    PularMarcaDeCodificacao(linhas.GetBytes());
    TResumoDeVereditos resumo;
    while (true) {
        const TLeitorDeLinhas::TLeitura leitura = linhas.Proxima();
        if (leitura == TLeitorDeLinhas::leFim) break;
        if (leitura == TLeitorDeLinhas::leLonga) {
            saida.Descarregar();
            RecusarRegistroLongo(resumo.Validos + resumo.Outros + 1, AOpcoes.Limites);
        }
        const bool valido = Conferir(ATipo, linhas.GetLinha(), AOpcoes.Uf) == veValido;
        ++(valido ? resumo.Validos : resumo.Outros);
        saida.GetTexto() += valido ? "1\n" : "0\n";
        saida.Descarregar(CBlocoDaSaida);
        if (AOpcoes.AoProgredir) AOpcoes.AoProgredir(linhas.GetBytes().GetTotal());
    }
    saida.Descarregar();
    return resumo;
}

}  // namespace Ory
