#include "pesquisa/Dados.hpp"
#include "sql_firebird/EmMemoria.hpp"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace OryUtils {
namespace {

using Exemplos::TLinha;

constexpr std::size_t CValores = 5000;
constexpr std::size_t CPorLote = 20;  // values that are compared with each other

constexpr std::u16string_view CPedacos[] = {
    u"'",          u"''",          u"\"",   u"--", u"/*",   u"*/",   u";",           u"%",
    u"_",          u"\n",          u"\r\n", u"\t", u"\\",   u"\\'",  u"ç",           u"Ã",
    u"😀",          u"👩‍🚀", u"’",    u"＇", u"ʼ",    u"'--",  u"' OR '1'='1", u"'; DROP TABLE HOSTIL; --",
    u"') OR (1=1", u"UPPER(",      u"a",    u"B",  u"b",    u" ",    u"'||'",        u"x'41'",
    u"q'{",        u"?",           u":p",   u"@1", u"NULL", u"\x01", u"\u2028",      u"\uFEFF"};

/// Texts made of hostile pieces, no two of them alike; neighbours often differ in one piece or in case.
std::vector<std::u16string> SortearValores(std::mt19937& AGerador) {
    std::set<std::u16string> usados;
    std::vector<std::u16string> valores;
    while (valores.size() < CValores) {
        std::u16string valor;
        if (!valores.empty() && AGerador() % 3 == 0) valor = valores.back();
        if (AGerador() % 6 == 0) valor = AGerador() % 2 ? MaiusculaDe(valor) : MinusculaDe(valor);
        for (auto pedacos = AGerador() % 5; pedacos > 0; --pedacos) valor += CPedacos[AGerador() % std::size(CPedacos)];
        if (valor.size() > 80) continue;
        if (usados.insert(valor).second) valores.push_back(valor);
    }
    return valores;
}

constexpr TCondicaoFiltro CCondicoes[] = {cfIgual, cfDiferente, cfMaior,     cfMaiorIgual, cfMenor,  cfMenorIgual,
                                          cfIn,    cfNotIn,     cfIniciaCom, cfTerminaCom, cfContem, cfBetween};

TEST(ValoresHostis, TrazemAsSuasLinhasENadaMais) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(semente));
    std::mt19937 gerador(semente);
    const auto valores = SortearValores(gerador);
    TTabelaDeTeste tabela{u"HOSTIL", {{u"ID", true}, {u"LOTE", true}, {u"VALOR"}}, {}};
    for (std::size_t i = 0; i < CValores; ++i)
        tabela.Linhas.push_back({InteiroParaTexto(static_cast<std::int64_t>(i)),
                                 InteiroParaTexto(static_cast<std::int64_t>(i / CPorLote)), valores[i]});

    auto banco = Exemplos::TBanco::Criar(ORY_PASTA_DE_TESTE "/hostis.fdb");
    banco.Executar(u"CREATE TABLE HOSTIL (ID INTEGER, LOTE INTEGER, VALOR VARCHAR(100))");
    banco.Executar(u"CREATE INDEX HOSTIL_LOTE ON HOSTIL (LOTE)");
    banco.ExecutarParaCada(u"INSERT INTO HOSTIL (ID, LOTE, VALOR) VALUES (?, ?, ?)", tabela.Linhas);

    for (std::size_t i = 0; i < CValores && !testing::Test::HasFailure(); ++i) {
        const std::size_t lote = i / CPorLote;
        const auto vizinho = [&] { return Variant(valores[lote * CPorLote + gerador() % CPorLote]); };
        TTabelaDeTeste parte{tabela.Nome, tabela.Colunas, {}};
        parte.Linhas.assign(tabela.Linhas.begin() + static_cast<std::ptrdiff_t>(lote * CPorLote),
                            tabela.Linhas.begin() + static_cast<std::ptrdiff_t>((lote + 1) * CPorLote));
        std::u16string sql;
        std::vector<TLinha> esperadas;
        for (std::size_t k = 0; k < std::size(CCondicoes); ++k) {
            TOryUtilsFiltroSql filtro(ofAnd);
            TOryUtilsFiltroSql& doLote = filtro.Add(ofAnd);
            doLote.SetTabela(u"h"), doLote.SetCampo(u"lote"), doLote.SetCondicao(cfIgual);
            doLote.SetValor(static_cast<std::int64_t>(lote));
            TOryUtilsFiltroSql& condicao = filtro.Add(ofAnd);
            condicao.SetTabela(u"h"), condicao.SetCampo(u"valor"), condicao.SetCondicao(CCondicoes[k]);
            condicao.SetQuoteStr(true);
            condicao.SetUsarUpperCase(gerador() % 4 == 0);
            condicao.SetValor(valores[i]);
            if (CCondicoes[k] == cfIn || CCondicoes[k] == cfNotIn || CCondicoes[k] == cfBetween)
                condicao.SetValor(std::vector<Variant>{valores[i], vizinho()});
            const std::u16string numero = InteiroParaTexto(static_cast<std::int64_t>(k));
            sql +=
                (k ? u" UNION ALL SELECT " : u"SELECT ") + numero + u", H.ID FROM HOSTIL H" + filtro.BuscarSQLWhere();
            for (const TLinha& linha : parte.Filtrar(filtro)) esperadas.push_back({numero, linha[0]});
        }
        auto vieram = banco.Consultar(sql);
        std::sort(vieram.begin(), vieram.end());
        std::sort(esperadas.begin(), esperadas.end());
        EXPECT_EQ(vieram, esperadas) << ParaUtf8(sql);
    }

    auto restam = banco.Consultar(u"SELECT ID, LOTE, VALOR FROM HOSTIL");
    std::sort(restam.begin(), restam.end());
    std::sort(tabela.Linhas.begin(), tabela.Linhas.end());
    EXPECT_TRUE(restam == tabela.Linhas) << "the table is as it was";
    EXPECT_EQ(banco.Consultar(u"SELECT COUNT(*) FROM RDB$RELATIONS WHERE RDB$SYSTEM_FLAG = 0").at(0).at(0), u"1");
}

}  // namespace
}  // namespace OryUtils
