#include "conferir/Conferencia.hpp"

#include "oryutils/characters/Utf.hpp"

#include "conferir/ColunasDeCampos.hpp"
#include "conferir/Esteira.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace Ory {
namespace {

// In the order of TVeredito.
constexpr std::array<std::string_view, 3> CVereditos{"vazio", "valido", "invalido"};
constexpr std::size_t CMaisColunas = 65536;
constexpr std::size_t CMaisDesiguais = 1000;  // kept at most, whatever is asked for

struct TColunaConferida {
    std::size_t Posicao;
    TTipoColuna Tipo;
    std::string Nome;  // bytes of the file
};

/// Everything that the work on a block needs; fixed before the first block.
struct TPlano {
    char Delimitador = ';';
    std::size_t Campos = 0;
    std::size_t CamposLidos = 0;  // up to the last one of interest
    std::vector<TColunaConferida> Colunas{};
    std::optional<std::size_t> PosicaoDaUf{};
    std::string Uf{};
    bool Reescrever = false;
    std::array<std::string, CVereditos.size()> Vereditos{};  // as written behind a record, between delimiters
    std::size_t Mostrar = 0;
};

struct TBlocoCsv {
    std::string Dados{};
    std::size_t Inicio = 0;  // behind the header in the first block
};

/// What a block gave; lines count from its first one.
struct TParcial {
    std::vector<TResumoDeColuna> Colunas{};
    std::uint64_t Linhas = 0;
    std::uint64_t Registros = 0;
    std::uint64_t LinhasEmBranco = 0;
    std::uint64_t Desiguais = 0;
    std::vector<TRegistroDesigual> PrimeirosDesiguais{};
    TIndicios Indicios{};
    std::string Saida{};

    void Reiniciar(std::size_t AColunas) {
        Colunas.resize(AColunas);
        for (TResumoDeColuna& coluna : Colunas) {
            coluna.Validos = coluna.Invalidos = coluna.Vazios = 0;
            coluna.Primeiros.clear();
        }
        Linhas = Registros = LinhasEmBranco = Desiguais = 0;
        PrimeirosDesiguais.clear();
        Indicios = {};
        Saida.clear();
    }
};

void ContarVeredito(TResumoDeColuna& AColuna, TVeredito AVeredito, std::uint64_t ALinha, std::string_view ACampo,
                    std::size_t AMostrar) {
    switch (AVeredito) {
        case veVazio:
            ++AColuna.Vazios;
            return;
        case veValido:
            ++AColuna.Validos;
            return;
        default:
            break;
    }
    ++AColuna.Invalidos;
    if (AColuna.Primeiros.size() < AMostrar)
        AColuna.Primeiros.push_back({ALinha, std::string(ACampo.substr(0, CMaiorValorMostrado))});
}

void ConferirRegistro(const TPlano& APlano, const TLeitorDeRegistros& ALeitor, TParcial& AParcial) {
    const auto campos = ALeitor.GetCampos();
    const auto campo = [&](std::size_t APosicao) {
        return APosicao < campos.size() ? campos[APosicao] : std::string_view();
    };
    const std::uint64_t linha = AParcial.Linhas + 1;
    ++AParcial.Registros;
    if (ALeitor.GetTotalDeCampos() != APlano.Campos) {
        ++AParcial.Desiguais;
        if (AParcial.PrimeirosDesiguais.size() < APlano.Mostrar)
            AParcial.PrimeirosDesiguais.push_back({linha, ALeitor.GetTotalDeCampos()});
    }
    if (APlano.Reescrever) {
        AParcial.Saida += ALeitor.GetTexto();
        for (std::size_t i = ALeitor.GetTotalDeCampos(); i < APlano.Campos; ++i) AParcial.Saida += APlano.Delimitador;
    }
    const std::string_view uf = APlano.PosicaoDaUf ? campo(*APlano.PosicaoDaUf) : std::string_view(APlano.Uf);
    for (std::size_t i = 0; i < APlano.Colunas.size(); ++i) {
        const TColunaConferida& coluna = APlano.Colunas[i];
        const std::string_view valor = campo(coluna.Posicao);
        const TVeredito veredito = Conferir(coluna.Tipo, valor, uf);
        ContarVeredito(AParcial.Colunas[i], veredito, linha, valor, APlano.Mostrar);
        if (!APlano.Reescrever) continue;
        AParcial.Saida += APlano.Vereditos[veredito];
        if (veredito != veValido) continue;
        if (!EhColunaDeCampo(coluna.Tipo)) {
            EscreverFormatado(AParcial.Saida, coluna.Tipo, valor);
            continue;
        }
        std::string formatado;  // may hold what a CSV puts in quotes
        EscreverFormatado(formatado, coluna.Tipo, valor);
        EscreverCampo(AParcial.Saida, formatado, APlano.Delimitador);
    }
    if (APlano.Reescrever) AParcial.Saida += ALeitor.GetFimDeLinha();
}

void ConferirBloco(const TPlano& APlano, const TBlocoCsv& ABloco, TParcial& AParcial) {
    AParcial.Reiniciar(APlano.Colunas.size());
    const std::string_view dados = std::string_view(ABloco.Dados).substr(ABloco.Inicio);
    AParcial.Indicios.Observar(ABloco.Dados);
    TLeitorDeRegistros leitor(dados, APlano.Delimitador, APlano.CamposLidos);
    while (leitor.Proximo()) {
        // A blank line in a file of several columns is no record; in a file of one it is an empty field.
        if (leitor.GetTexto().empty() && APlano.Campos > 1) {
            ++AParcial.LinhasEmBranco;
            if (APlano.Reescrever) AParcial.Saida += leitor.GetFimDeLinha();
        } else {
            ConferirRegistro(APlano, leitor, AParcial);
        }
        AParcial.Linhas += leitor.GetQuebras();
    }
}

/// Adds the parts up, in the order of the file.
class TSoma {
public:
    TSoma(TResumo& AResumo, TSaida* ASaida, std::size_t AMostrar, std::uint64_t ALinhas)
        : FResumo(AResumo), FSaida(ASaida), FMostrar(std::min(AMostrar, CMaisDesiguais)), FLinhas(ALinhas) {}

    void Juntar(TParcial& AParcial) {
        for (std::size_t i = 0; i < AParcial.Colunas.size(); ++i) JuntarColuna(FResumo.Colunas[i], AParcial.Colunas[i]);
        FResumo.Registros += AParcial.Registros;
        FResumo.LinhasEmBranco += AParcial.LinhasEmBranco;
        FResumo.Desiguais += AParcial.Desiguais;
        for (const TRegistroDesigual& desigual : AParcial.PrimeirosDesiguais)
            if (FResumo.PrimeirosDesiguais.size() < FMostrar)
                FResumo.PrimeirosDesiguais.push_back({FLinhas + desigual.Linha, desigual.Campos});
        FIndicios.Juntar(AParcial.Indicios);
        FLinhas += AParcial.Linhas;
        if (FSaida && !AParcial.Saida.empty()) FSaida->Escrever(AParcial.Saida);
    }

    const TIndicios& GetIndicios() const noexcept { return FIndicios; }
    std::uint64_t GetLinhas() const noexcept { return FLinhas; }

private:
    void JuntarColuna(TResumoDeColuna& ATotal, TResumoDeColuna& AParte) const {
        ATotal.Validos += AParte.Validos;
        ATotal.Invalidos += AParte.Invalidos;
        ATotal.Vazios += AParte.Vazios;
        for (TInfrator& infrator : AParte.Primeiros)
            if (ATotal.Primeiros.size() < FMostrar)
                ATotal.Primeiros.push_back({FLinhas + infrator.Linha, std::move(infrator.Valor)});
    }

    TResumo& FResumo;
    TSaida* FSaida;
    std::size_t FMostrar;
    std::uint64_t FLinhas;  // before the part
    TIndicios FIndicios{};
};

/// The position of the column that the caller named by header or by position.
std::size_t LocalizarColuna(const std::vector<std::string>& ACabecalho, const std::string& ANome, bool ASemCabecalho) {
    if (!ASemCabecalho)
        for (std::size_t i = 0; i < ACabecalho.size(); ++i)
            if (EhMesmoCabecalho(ACabecalho[i], ANome)) return i;
    std::size_t posicao = 0;
    const bool numero = !ANome.empty() && ANome.size() < 8 && std::all_of(ANome.begin(), ANome.end(), [&](char c) {
        posicao = posicao * 10 + static_cast<std::size_t>(c - '0');
        return c >= '0' && c <= '9';
    });
    if (numero && posicao >= 1 && posicao <= ACabecalho.size()) return posicao - 1;
    throw EFalha("não há coluna \"" + ANome + "\" no arquivo");
}

std::string JuntarNomes(const std::vector<std::string>& ANomes) {
    constexpr std::size_t CMaisNomes = 20;
    std::string lista;
    for (std::size_t i = 0; i < std::min(ANomes.size(), CMaisNomes); ++i)
        lista += (i ? ", " : "") + DecodificarParaUtf8(ANomes[i], coDetectar);
    return ANomes.size() > CMaisNomes ? lista + ", ..." : lista;
}

void EscolherColunas(TPlano& APlano, const std::vector<std::string>& ACabecalho, const TOpcoesDeConferencia& AOpcoes) {
    std::vector<TTipoColuna> tipos(ACabecalho.size(), tcNenhum);
    if (!AOpcoes.SemCabecalho) std::transform(ACabecalho.begin(), ACabecalho.end(), tipos.begin(), ReconhecerCabecalho);
    for (const auto& [nome, tipo] : AOpcoes.Colunas)
        tipos[LocalizarColuna(ACabecalho, nome, AOpcoes.SemCabecalho)] = tipo;

    bool temIe = false;
    for (std::size_t i = 0; i < tipos.size(); ++i) {
        if (tipos[i] == tcUf && !APlano.PosicaoDaUf) APlano.PosicaoDaUf = i;
        if (tipos[i] == tcNenhum || tipos[i] == tcUf) continue;
        temIe = temIe || tipos[i] == tcIe;
        APlano.Colunas.push_back({i, tipos[i], ACabecalho[i]});
        APlano.CamposLidos = i + 1;
    }
    if (!AOpcoes.Uf.empty()) {
        APlano.PosicaoDaUf.reset();
        APlano.Uf = AOpcoes.Uf;
    }
    if (APlano.PosicaoDaUf) APlano.CamposLidos = std::max(APlano.CamposLidos, *APlano.PosicaoDaUf + 1);
    if (APlano.Colunas.empty())
        throw EFalha("nenhuma coluna para conferir" +
                     (AOpcoes.SemCabecalho ? std::string() : " entre: " + JuntarNomes(ACabecalho)) +
                     "; indique com --coluna nome=tipo");
    if (temIe && !APlano.PosicaoDaUf && APlano.Uf.empty())
        throw EFalha("há coluna de inscrição estadual mas não de UF; indique com --coluna nome=uf ou --uf");
}

std::string EscreverCabecalho(const TPlano& APlano, const TLeitorDeRegistros& ALeitor) {
    std::string saida(ALeitor.GetTexto());
    for (const TColunaConferida& coluna : APlano.Colunas)
        for (const std::string_view sufixo : {"_veredito", "_formatado"}) {
            saida += APlano.Delimitador;
            EscreverCampo(saida, coluna.Nome + std::string(sufixo), APlano.Delimitador);
        }
    const std::string_view fim = ALeitor.GetFimDeLinha();
    return saida += fim;
}

[[noreturn]] void RecusarRegistro(TLeitorDeBlocos::TLeitura ALeitura, std::uint64_t ALinha, const TLimites& ALimites) {
    const std::string linha = "linha " + std::to_string(ALinha) + ": ";
    if (ALeitura == TLeitorDeBlocos::leAspasAbertas) throw EFalha(linha + "aspas abertas e nunca fechadas");
    throw EFalha(linha + "registro maior que o limite de " + std::to_string(ALimites.Registro >> 20) +
                 " MiB (faltam aspas de fechamento?)");
}

}  // namespace

bool TResumo::EstahTudoValido() const noexcept {
    return std::all_of(Colunas.begin(), Colunas.end(), [](const TResumoDeColuna& c) { return c.Invalidos == 0; });
}

TResumo ConferirCsv(TEntrada& AEntrada, TSaida* ASaida, const TOpcoesDeConferencia& AOpcoes) {
    TLeitorDeBlocos blocos(AEntrada, AOpcoes.Limites);
    const std::string_view inicio = blocos.EspiarInicio();
    TPlano plano;
    plano.Delimitador = AOpcoes.Delimitador ? AOpcoes.Delimitador : DetectarDelimitador(inicio);
    plano.Reescrever = ASaida != nullptr;
    for (std::size_t i = 0; i < CVereditos.size(); ++i)
        ((plano.Vereditos[i] = plano.Delimitador) += CVereditos[i]) += plano.Delimitador;
    plano.Mostrar = std::min(AOpcoes.Mostrar, CMaisDesiguais);
    TCortadorDeRegistros cortador(plano.Delimitador);

    // The first block starts with the header, which says what there is to check.
    TBlocoCsv primeiro;
    TLeitorDeBlocos::TLeitura leitura = blocos.Ler(primeiro.Dados, cortador);
    if (leitura == TLeitorDeBlocos::leFim) throw EFalha("o arquivo está vazio");
    if (leitura != TLeitorDeBlocos::leBloco) RecusarRegistro(leitura, 1, AOpcoes.Limites);
    TLeitorDeRegistros cabecalho(primeiro.Dados, plano.Delimitador, CMaisColunas);
    cabecalho.Proximo();
    plano.Campos = cabecalho.GetTotalDeCampos();
    if (plano.Campos > CMaisColunas) throw EFalha("mais de " + std::to_string(CMaisColunas) + " colunas");
    EscolherColunas(plano, {cabecalho.GetCampos().begin(), cabecalho.GetCampos().end()}, AOpcoes);
    if (ASaida && blocos.PossuiMarcaUtf8()) ASaida->Escrever("\xEF\xBB\xBF");
    std::uint64_t linhas = 0;
    if (!AOpcoes.SemCabecalho) {
        primeiro.Inicio = cabecalho.GetTexto().size() + cabecalho.GetFimDeLinha().size();
        linhas = cabecalho.GetQuebras();
        if (ASaida) ASaida->Escrever(EscreverCabecalho(plano, cabecalho));
    }

    TResumo resumo;
    for (const TColunaConferida& coluna : plano.Colunas) {
        const std::string nome = AOpcoes.SemCabecalho ? std::to_string(coluna.Posicao + 1)
                                                      : DecodificarParaUtf8(coluna.Nome, AOpcoes.Codificacao);
        resumo.Colunas.push_back({.Nome = nome, .Tipo = coluna.Tipo});
    }
    TSoma soma(resumo, ASaida, plano.Mostrar, linhas);
    TEsteira<TBlocoCsv, TParcial> esteira(
        AOpcoes.Tarefas, [&](const TBlocoCsv& ABloco, TParcial& AParcial) { ConferirBloco(plano, ABloco, AParcial); },
        [&](TParcial& AParcial) { soma.Juntar(AParcial); });
    esteira.GetLivre() = std::move(primeiro);
    while (leitura == TLeitorDeBlocos::leBloco) {
        esteira.Enviar(blocos.EstahNoFim());
        if (AOpcoes.AoProgredir) AOpcoes.AoProgredir(blocos.GetBytesLidos());
        TBlocoCsv& bloco = esteira.GetLivre();
        bloco.Inicio = 0;
        leitura = blocos.Ler(bloco.Dados, cortador);
    }
    esteira.Terminar();
    if (leitura != TLeitorDeBlocos::leFim) RecusarRegistro(leitura, soma.GetLinhas() + 1, AOpcoes.Limites);

    resumo.PossuiMarcaUtf8 = blocos.PossuiMarcaUtf8();
    resumo.Codificacao = AOpcoes.Codificacao == coDetectar ? soma.GetIndicios().GetCodificacao() : AOpcoes.Codificacao;
    resumo.Delimitador = plano.Delimitador;
    resumo.Campos = plano.Campos;
    return resumo;
}

namespace {

struct TParteDeVereditos {
    std::string Saida{};
    std::uint64_t Validos = 0;
    std::uint64_t Linhas = 0;
};

void ConferirLinhas(const std::string& ABloco, TTipoColuna ATipo, std::string_view AUf, TParteDeVereditos& AParte) {
    AParte.Saida.clear();
    AParte.Validos = AParte.Linhas = 0;
    for (std::string_view resto = ABloco; !resto.empty();) {
        const std::size_t quebra = resto.find('\n');
        const bool valido = Conferir(ATipo, resto.substr(0, quebra), AUf) == veValido;
        AParte.Saida += valido ? "1\n" : "0\n";
        AParte.Validos += valido;
        ++AParte.Linhas;
        resto.remove_prefix(quebra == std::string_view::npos ? resto.size() : quebra + 1);
    }
}

}  // namespace

TResumoDeVereditos EscreverVereditos(TEntrada& AEntrada, TSaida& ASaida, TTipoColuna ATipo,
                                     const TOpcoesDeConferencia& AOpcoes) {
    TLeitorDeBlocos blocos(AEntrada, AOpcoes.Limites);
    blocos.EspiarInicio();
    TResumoDeVereditos resumo;
    TEsteira<std::string, TParteDeVereditos> esteira(
        AOpcoes.Tarefas,
        [&](const std::string& ABloco, TParteDeVereditos& AParte) {
            ConferirLinhas(ABloco, ATipo, AOpcoes.Uf, AParte);
        },
        [&](TParteDeVereditos& AParte) {
            resumo.Validos += AParte.Validos;
            resumo.Outros += AParte.Linhas - AParte.Validos;
            ASaida.Escrever(AParte.Saida);
        });
    while (true) {
        std::string& bloco = esteira.GetLivre();
        const TLeitorDeBlocos::TLeitura leitura = blocos.LerLinhas(bloco);
        if (leitura == TLeitorDeBlocos::leBloco) {
            esteira.Enviar(blocos.EstahNoFim());
            if (AOpcoes.AoProgredir) AOpcoes.AoProgredir(blocos.GetBytesLidos());
            continue;
        }
        esteira.Terminar();
        if (leitura == TLeitorDeBlocos::leFim) return resumo;
        RecusarRegistro(leitura, resumo.Validos + resumo.Outros + 1, AOpcoes.Limites);
    }
}

}  // namespace Ory
