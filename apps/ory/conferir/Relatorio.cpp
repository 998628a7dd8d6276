#include "conferir/Relatorio.hpp"

#include "oryutils/characters/Utf.hpp"

#include "TextoNaTela.hpp"
#include "operations/Json.hpp"

#include <algorithm>
#include <array>

namespace Ory {
namespace {

/// A value of the file as it may be shown.
std::string Mostrar(std::string_view AValor, TCodificacao ACodificacao, std::size_t AMaior) {
    return ParaATela(OryUtils::DeUtf8(DecodificarParaUtf8(AValor, ACodificacao)), AMaior);
}

/// Of the filled ones, cut to one decimal: 100,0% means all of them.
std::string EscreverPercentual(std::uint64_t AParte, std::uint64_t ATodo) {
    if (!ATodo) return "-";
    const auto decimos =
        static_cast<std::uint64_t>(static_cast<long double>(AParte) / static_cast<long double>(ATodo) * 1000.0L);
    return std::to_string(decimos / 10) + "," + std::to_string(decimos % 10) + "%";
}

using TLinhaDaTabela = std::array<std::string, 6>;
constexpr std::size_t CColunasDeTexto = 2;  // the others are numbers, to the right

std::string_view NomeDaCodificacao(const TResumo& AResumo) {
    return AResumo.Codificacao == coWindows1252 ? "windows-1252" : "utf-8";
}

void EscreverInfratores(std::string& ASaida, const TResumo& AResumo, const TResumoDeColuna& AColuna, int ALargura) {
    std::size_t digitos = 0;
    for (const TInfrator& infrator : AColuna.Primeiros)
        digitos = std::max(digitos, EscreverQuantidade(infrator.Linha).size());
    const std::size_t cabe =
        std::max<std::size_t>(static_cast<std::size_t>(std::max(ALargura, 0)), digitos + 30) - digitos - 12;
    for (const TInfrator& infrator : AColuna.Primeiros)
        ASaida += "  linha " + ADireita(EscreverQuantidade(infrator.Linha), digitos) + "  " +
                  Mostrar(infrator.Valor, AResumo.Codificacao, cabe) + "\n";
    if (AColuna.Invalidos > AColuna.Primeiros.size())
        ASaida += "  e mais " + EscreverQuantidade(AColuna.Invalidos - AColuna.Primeiros.size()) + "\n";
}

void EscreverDesiguais(std::string& ASaida, const TResumo& AResumo) {
    ASaida += "\nRegistros com outro número de campos (" + EscreverQuantidade(AResumo.Desiguais) + "; o esperado é " +
              std::to_string(AResumo.Campos) + "):\n";
    for (const TRegistroDesigual& desigual : AResumo.PrimeirosDesiguais)
        ASaida += "  linha " + EscreverQuantidade(desigual.Linha) + "  " + EscreverQuantidade(desigual.Campos) +
                  (desigual.Campos == 1 ? " campo\n" : " campos\n");
    if (AResumo.Desiguais > AResumo.PrimeirosDesiguais.size())
        ASaida += "  e mais " + EscreverQuantidade(AResumo.Desiguais - AResumo.PrimeirosDesiguais.size()) + "\n";
}

void EscreverNaoConferidas(std::string& ASaida, const TResumo& AResumo) {
    constexpr std::size_t CMaisNomes = 20;
    constexpr std::size_t CMaiorNome = 40;
    ASaida += "\nColunas não conferidas: ";
    for (std::size_t i = 0; i < std::min(AResumo.NaoConferidas.size(), CMaisNomes); ++i)
        ASaida += (i ? ", " : "") + Mostrar(AResumo.NaoConferidas[i], coUtf8, CMaiorNome);
    if (AResumo.NaoConferidas.size() > CMaisNomes)
        ASaida += " e mais " + EscreverQuantidade(AResumo.NaoConferidas.size() - CMaisNomes);
    ASaida += '\n';
}

std::string_view Concluir(const TResumo& AResumo) {
    if (AResumo.EstahVazio()) return "Não há registros.";
    if (!AResumo.EstahTudoValido()) return "Há valores inválidos.";
    return AResumo.NaoConferidas.empty() ? "Tudo válido." : "Tudo válido nas colunas conferidas.";
}

}  // namespace

std::string EscreverQuantidade(std::uint64_t AValor) {
    const std::string digitos = std::to_string(AValor);
    std::string texto;
    for (std::size_t i = 0; i < digitos.size(); ++i) {
        if (i && (digitos.size() - i) % 3 == 0) texto += '.';
        texto += digitos[i];
    }
    return texto;
}

std::string EscreverRelatorio(const TResumo& AResumo, std::string_view AArquivo, int ALargura, bool ACores) {
    const auto cor = [&](std::string_view ACor) { return ACores ? ACor : std::string_view(); };
    constexpr std::size_t CMaiorNome = 40;
    std::vector<TLinhaDaTabela> tabela{{"coluna", "tipo", "válidos", "inválidos", "vazios", "% válidos"}};
    for (const TResumoDeColuna& coluna : AResumo.Colunas)
        tabela.push_back({Mostrar(coluna.Nome, coUtf8, CMaiorNome), std::string(coluna.Tipo->Nome),
                          EscreverQuantidade(coluna.Validos), EscreverQuantidade(coluna.Invalidos),
                          EscreverQuantidade(coluna.Vazios),
                          EscreverPercentual(coluna.Validos, coluna.Validos + coluna.Invalidos)});
    std::array<std::size_t, std::tuple_size_v<TLinhaDaTabela>> larguras{};
    for (const TLinhaDaTabela& linha : tabela)
        for (std::size_t i = 0; i < linha.size(); ++i) larguras[i] = std::max(larguras[i], ContarCaracteres(linha[i]));

    std::string saida(cor(CNegrito));
    saida += Mostrar(AArquivo, coUtf8, 200);
    saida += cor(CNormal);
    saida += ": " + EscreverQuantidade(AResumo.Registros) + (AResumo.Registros == 1 ? " registro, " : " registros, ");
    saida += NomeDaCodificacao(AResumo);
    saida += "\n\n";
    for (std::size_t l = 0; l < tabela.size(); ++l) {
        const bool invalida = l && AResumo.Colunas[l - 1].Invalidos;
        saida += cor(l == 0 ? CNegrito : invalida ? CVermelho : CVerde);
        for (std::size_t i = 0; i < tabela[l].size(); ++i) {
            if (i) saida += "  ";
            saida += i < CColunasDeTexto ? AEsquerda(tabela[l][i], larguras[i]) : ADireita(tabela[l][i], larguras[i]);
        }
        saida += cor(CNormal);
        saida += '\n';
    }
    for (const TResumoDeColuna& coluna : AResumo.Colunas) {
        if (!coluna.Invalidos) continue;
        saida += "\nInválidos de " + Mostrar(coluna.Nome, coUtf8, CMaiorNome) + ":\n";
        EscreverInfratores(saida, AResumo, coluna, ALargura);
    }
    if (AResumo.Desiguais) EscreverDesiguais(saida, AResumo);
    if (AResumo.LinhasEmBranco) saida += "\nLinhas em branco: " + EscreverQuantidade(AResumo.LinhasEmBranco) + "\n";
    if (!AResumo.NaoConferidas.empty()) EscreverNaoConferidas(saida, AResumo);
    saida += '\n';
    saida += cor(AResumo.EstahTudoValido() ? CVerde : CVermelho);
    saida += Concluir(AResumo);
    saida += cor(CNormal);
    saida += '\n';
    return saida;
}

std::string EscreverRelatorioJson(const TResumo& AResumo, std::string_view AArquivo) {
    std::string saida = R"({"arquivo":)";
    EscreverTextoJson(saida, AArquivo);
    saida += R"(,"codificacao":")";
    saida += NomeDaCodificacao(AResumo);
    saida += R"(","bom":)";
    saida += AResumo.PossuiMarcaUtf8 ? "true" : "false";
    saida += R"(,"delimitador":)";
    EscreverTextoJson(saida, std::string_view(&AResumo.Delimitador, 1));
    saida += R"(,"registros":)" + std::to_string(AResumo.Registros);
    saida += R"(,"linhas_em_branco":)" + std::to_string(AResumo.LinhasEmBranco);
    saida += R"(,"colunas":[)";
    for (std::size_t i = 0; i < AResumo.Colunas.size(); ++i) {
        const TResumoDeColuna& coluna = AResumo.Colunas[i];
        saida += i ? R"(,{"nome":)" : R"({"nome":)";
        EscreverTextoJson(saida, coluna.Nome);
        saida += R"(,"tipo":")";
        saida += coluna.Tipo->Nome;
        saida += R"(","validos":)" + std::to_string(coluna.Validos);
        saida += R"(,"invalidos":)" + std::to_string(coluna.Invalidos);
        saida += R"(,"vazios":)" + std::to_string(coluna.Vazios);
        saida += R"(,"primeiros":[)";
        for (std::size_t j = 0; j < coluna.Primeiros.size(); ++j) {
            if (j) saida += ',';
            saida += R"({"linha":)" + std::to_string(coluna.Primeiros[j].Linha) + R"(,"valor":)";
            EscreverTextoJson(saida, DecodificarParaUtf8(coluna.Primeiros[j].Valor, AResumo.Codificacao));
            saida += '}';
        }
        saida += "]}";
    }
    saida += R"(],"nao_conferidas":[)";
    for (std::size_t i = 0; i < AResumo.NaoConferidas.size(); ++i) {
        if (i) saida += ',';
        EscreverTextoJson(saida, AResumo.NaoConferidas[i]);
    }
    saida += R"(],"desiguais":{"total":)" + std::to_string(AResumo.Desiguais);
    saida += R"(,"esperados":)" + std::to_string(AResumo.Campos) + R"(,"primeiros":[)";
    for (std::size_t j = 0; j < AResumo.PrimeirosDesiguais.size(); ++j) {
        const TRegistroDesigual& desigual = AResumo.PrimeirosDesiguais[j];
        if (j) saida += ',';
        saida +=
            R"({"linha":)" + std::to_string(desigual.Linha) + R"(,"campos":)" + std::to_string(desigual.Campos) + "}";
    }
    saida += R"(]},"valido":)";
    saida += AResumo.EstahTudoValido() ? "true}\n" : "false}\n";
    return saida;
}

}  // namespace Ory
