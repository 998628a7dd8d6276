// The SQL filter against the same text concatenated with fmt::format.
//   FiltroN: the tree of N conditions is filled in and written; TextoN: only written.
// Each item is one whole text. Five kinds of condition take turns, the same ones that npm/filtro_sql.mjs gives to knex.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include <benchmark/benchmark.h>

#include <fmt/format.h>
#include <string>
#include <vector>

namespace {

using namespace OryUtils;

/// A condition as a program holds it; the library's own node on one side, this on the other.
struct TCondicaoFmt {
    std::string Tabela, Campo, Palavra;
    bool Aspas, Maiusculas;
    std::vector<std::string> Valores;
};

const std::u16string CNomes[] = {u"Ana", u"João D'Ávila", u"Maria das Dores", u"Zé"};
const std::string CNomesUtf8[] = {"Ana", "João D'Ávila", "Maria das Dores", "Zé"};

void Preencher(TOryUtilsFiltroSql& ANo, int ANumero) {
    ANo.SetTabela(u"f");
    switch (ANumero % 5) {
        case 0:
            ANo.SetCampo(u"nome");
            ANo.SetCondicao(cfIgual);
            ANo.SetQuoteStr(true);
            ANo.SetUsarUpperCase(true);
            ANo.SetValor(CNomes[ANumero % 4]);
            return;
        case 1:
            ANo.SetCampo(u"codigo");
            ANo.SetCondicao(cfMaiorIgual);
            ANo.SetValor(ANumero);
            return;
        case 2:
            ANo.SetCampo(u"nome");
            ANo.SetCondicao(cfContem);
            ANo.SetValor(CNomes[ANumero % 4]);
            return;
        case 3:
            ANo.SetCampo(u"filial");
            ANo.SetCondicao(cfIn);
            ANo.SetValor(std::vector<Variant>{1, 2, 3, 5, ANumero});
            return;
        default:
            ANo.SetCampo(u"situacao");
            ANo.SetCondicao(cfBetween);
            ANo.SetQuoteStr(true);
            ANo.SetValor(std::vector<Variant>{u"A", u"D'"});
    }
}

TCondicaoFmt PreencherFmt(int ANumero) {
    switch (ANumero % 5) {
        case 0:
            return {"f", "nome", "=", true, true, {CNomesUtf8[ANumero % 4]}};
        case 1:
            return {"f", "codigo", ">=", false, false, {std::to_string(ANumero)}};
        case 2:
            return {"f", "nome", "LIKE", true, false, {CNomesUtf8[ANumero % 4]}};
        case 3:
            return {"f", "filial", "IN", false, false, {"1", "2", "3", "5", std::to_string(ANumero)}};
        default:
            return {"f", "situacao", "BETWEEN", true, false, {"A", "D'"}};
    }
}

std::string Maiuscula(std::string_view ATexto) {
    std::string resultado(ATexto);
    for (char& c : resultado)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return resultado;
}

std::string Citar(std::string_view ATexto) {
    std::string resultado = "'";
    for (const char c : ATexto) resultado.append(c == '\'' ? 2 : 1, c);
    return resultado += '\'';
}

std::string CondicaoFmt(const TCondicaoFmt& A) {
    const auto valor = [&](std::size_t i) { return A.Aspas ? Citar(A.Valores[i]) : A.Valores[i]; };
    std::string texto;
    if (A.Palavra == "IN") {
        for (std::size_t i = 0; i < A.Valores.size(); ++i) texto += (i ? "," : "") + valor(i);
        texto = fmt::format("({} )", texto);
    } else if (A.Palavra == "BETWEEN")
        texto = fmt::format("{} AND {}", valor(0), valor(1));
    else if (A.Palavra == "LIKE")
        texto = Citar(fmt::format("%{}%", A.Valores[0]));
    else
        texto = A.Maiusculas ? fmt::format("UPPER({})", valor(0)) : valor(0);
    return A.Maiusculas
               ? fmt::format("( UPPER({}.{}) {} {} )", Maiuscula(A.Tabela), Maiuscula(A.Campo), A.Palavra, texto)
               : fmt::format("( {}.{} {} {} )", Maiuscula(A.Tabela), Maiuscula(A.Campo), A.Palavra, texto);
}

std::string GrupoFmt(const std::vector<TCondicaoFmt>& ACondicoes) {
    std::string texto;
    for (const TCondicaoFmt& condicao : ACondicoes) {
        const std::string uma = CondicaoFmt(condicao);
        texto += texto.empty() ? uma : fmt::format(" AND {}", uma);
    }
    return fmt::format(" WHERE ( {} )", texto);
}

void Encher(TOryUtilsFiltroSql& AFiltro, int AQuantas) {
    for (int i = 0; i < AQuantas; ++i) Preencher(AFiltro.Add(ofAnd), i);
}
std::vector<TCondicaoFmt> EncherFmt(int AQuantas) {
    std::vector<TCondicaoFmt> condicoes;
    for (int i = 0; i < AQuantas; ++i) condicoes.push_back(PreencherFmt(i));
    return condicoes;
}

template <int AQuantas>
void FiltroBiblioteca(benchmark::State& AEstado) {
    for (auto _ : AEstado) {
        TOryUtilsFiltroSql filtro(ofAnd);
        Encher(filtro, AQuantas);
        benchmark::DoNotOptimize(filtro.BuscarSQLWhere());
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}
template <int AQuantas>
void FiltroFmt(benchmark::State& AEstado) {
    for (auto _ : AEstado) benchmark::DoNotOptimize(GrupoFmt(EncherFmt(AQuantas)));
    AEstado.SetItemsProcessed(AEstado.iterations());
}
template <int AQuantas>
void TextoBiblioteca(benchmark::State& AEstado) {
    TOryUtilsFiltroSql filtro(ofAnd);
    Encher(filtro, AQuantas);
    for (auto _ : AEstado) benchmark::DoNotOptimize(filtro.BuscarSQLWhere());
    AEstado.SetItemsProcessed(AEstado.iterations());
}
template <int AQuantas>
void TextoFmt(benchmark::State& AEstado) {
    const auto condicoes = EncherFmt(AQuantas);
    for (auto _ : AEstado) benchmark::DoNotOptimize(GrupoFmt(condicoes));
    AEstado.SetItemsProcessed(AEstado.iterations());
}
/// The limit: the text, already written, in memory of its own.
template <int AQuantas>
void TextoCopia(benchmark::State& AEstado) {
    TOryUtilsFiltroSql filtro(ofAnd);
    Encher(filtro, AQuantas);
    const std::u16string texto = filtro.BuscarSQLWhere();
    for (auto _ : AEstado) benchmark::DoNotOptimize(std::u16string(texto));
    AEstado.SetItemsProcessed(AEstado.iterations());
}
BENCHMARK(TextoCopia<5>)->Name("Texto5_Copia");
BENCHMARK(TextoCopia<50>)->Name("Texto50_Copia");
BENCHMARK(TextoCopia<500>)->Name("Texto500_Copia");
BENCHMARK(FiltroBiblioteca<5>)->Name("Filtro5_Biblioteca");
BENCHMARK(FiltroBiblioteca<50>)->Name("Filtro50_Biblioteca");
BENCHMARK(FiltroBiblioteca<500>)->Name("Filtro500_Biblioteca");
BENCHMARK(FiltroFmt<5>)->Name("Filtro5_fmt");
BENCHMARK(FiltroFmt<50>)->Name("Filtro50_fmt");
BENCHMARK(FiltroFmt<500>)->Name("Filtro500_fmt");
BENCHMARK(TextoBiblioteca<5>)->Name("Texto5_Biblioteca");
BENCHMARK(TextoBiblioteca<50>)->Name("Texto50_Biblioteca");
BENCHMARK(TextoBiblioteca<500>)->Name("Texto500_Biblioteca");
BENCHMARK(TextoFmt<5>)->Name("Texto5_fmt");
BENCHMARK(TextoFmt<50>)->Name("Texto50_fmt");
BENCHMARK(TextoFmt<500>)->Name("Texto500_fmt");

/// Both sides must write the same text, or the comparison says nothing.
bool EscrevemOMesmo(int AQuantas) {
    TOryUtilsFiltroSql filtro(ofAnd);
    Encher(filtro, AQuantas);
    return ParaUtf8(filtro.BuscarSQLWhere()) == GrupoFmt(EncherFmt(AQuantas));
}

}  // namespace

int main(int AQuantos, char** AArgumentos) {
    if (!EscrevemOMesmo(500)) {
        std::fputs("the two texts differ\n", stderr);
        return 1;
    }
    benchmark::Initialize(&AQuantos, AArgumentos);
    if (benchmark::ReportUnrecognizedArguments(AQuantos, AArgumentos)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
