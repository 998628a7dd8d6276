#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "pesquisa/Dados.hpp"
#include "sql_firebird/EmMemoria.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace OryUtils {
namespace {

using TFiltro = TOryUtilsFiltroSql;
using Exemplos::TLinha;

constexpr std::u16string_view CPedacos[] = {
    u"'",          u"''",          u"\"",   u"--", u"/*",   u"*/",   u";",           u"%",
    u"_",          u"\n",          u"\r\n", u"\t", u"\\",   u"\\'",  u"ç",           u"Ã",
    u"😀",          u"👩‍🚀", u"’",    u"＇", u"ʼ",    u"'--",  u"' OR '1'='1", u"'; DROP TABLE HOSTIL; --",
    u"') OR (1=1", u"UPPER(",      u"a",    u"B",  u"b",    u" ",    u"'||'",        u"x'41'",
    u"q'{",        u"?",           u":p",   u"@1", u"NULL", u"\x01", u"\u2028",      u"\uFEFF"};

class BancoDeDados : public testing::Test {
protected:
    static void SetUpTestSuite() {
        GBanco = std::make_unique<Exemplos::TBanco>(Exemplos::TBanco::Criar(ORY_PASTA_DE_TESTE "/condicoes.fdb"));
        const std::filesystem::path pasta = ORY_PASTA_DO_PROJETO "/examples";
        Exemplos::CriarTabelas(*GBanco, pasta);
        GTabelas = {{u"MUNICIPIO", {{u"CODIGO", true}, {u"NOME"}, {u"UF"}}, Exemplos::LerMunicipios(pasta)},
                    {u"BANCO", {{u"NOME"}, {u"CNPJ"}, {u"APELIDO"}}, Exemplos::LerBancos(pasta)},
                    {u"HOSTIL", {{u"VALOR"}, {u"OUTRO"}}, SortearHostis()}};
        GBanco->Executar(u"CREATE TABLE HOSTIL (VALOR VARCHAR(200), OUTRO VARCHAR(200))");
        GBanco->ExecutarParaCada(u"INSERT INTO HOSTIL (VALOR, OUTRO) VALUES (?, ?)", GTabelas[2].Linhas);
    }
    static void TearDownTestSuite() { GBanco.reset(); }

    /// Texts made of hostile pieces; neighbours often differ in one piece or in case.
    static std::vector<TLinha> SortearHostis() {
        std::vector<TLinha> linhas;
        for (std::u16string um, outro; linhas.size() < 600; um.swap(outro)) {
            if (um.size() > 60 || GGerador() % 3) um.clear();
            if (GGerador() % 6 == 0) um = GGerador() % 2 ? MaiusculaDe(um) : MinusculaDe(um);
            for (auto pedacos = GGerador() % 5; pedacos > 0; --pedacos)
                um += CPedacos[GGerador() % std::size(CPedacos)];
            linhas.push_back({um, outro});
        }
        return linhas;
    }
    static std::vector<TLinha> Consultar(const std::u16string& ASql) {
        auto linhas = GBanco->Consultar(ASql);
        std::sort(linhas.begin(), linhas.end());
        return linhas;
    }
    static unsigned Numero(std::size_t AAte) { return static_cast<unsigned>(GGerador() % AAte); }
    static bool EhSubstituto(char16_t c) { return c >= 0xD800 && c < 0xE000; }
    /// A condition whose value comes from the rows themselves.
    static void Folha(TFiltro& ANo, const TTabelaDeTeste& ATabela, TCondicaoFiltro ACondicao) {
        const unsigned indice = Numero(ATabela.Colunas.size());
        const TColunaEmMemoria& coluna = ATabela.Colunas[indice];
        const auto celula = [&]() -> std::u16string {
            while (true)
                if (const auto& sorteada = ATabela.Linhas[Numero(ATabela.Linhas.size())].at(indice)) return *sorteada;
        };
        const bool busca = ACondicao == cfIniciaCom || ACondicao == cfTerminaCom || ACondicao == cfContem;
        ANo.SetTabela(u"t");
        ANo.SetCampo(coluna.Nome);
        ANo.SetCondicao(ACondicao);
        ANo.SetQuoteStr(!coluna.Inteira);
        ANo.SetUsarUpperCase(!coluna.Inteira && Numero(2));
        std::u16string texto = celula();
        if (busca && texto.size() > 2 && std::ranges::none_of(texto, EhSubstituto))
            texto = texto.substr(Numero(2) ? 0 : Numero(texto.size()), 1 + Numero(4));
        if (ANo.GetUsarUpperCase() && Numero(4)) texto = MaiusculaDe(texto);
        const auto valor = [&](const std::u16string& A) {
            return coluna.Inteira ? Variant(TextoParaInt64(A)) : Variant(A);
        };
        if (busca)
            ANo.SetValor(texto);
        else if (ACondicao == cfBetween)
            ANo.SetValor(std::vector<Variant>{valor(texto), valor(celula())});
        else if (ACondicao == cfIn || ACondicao == cfNotIn) {
            std::vector<Variant> itens;
            for (auto quantos = 1 + Numero(256); quantos > 0; --quantos) itens.push_back(valor(celula()));
            ANo.SetValor(std::move(itens));
        } else
            ANo.SetValor(valor(texto));
    }
    static void Arvore(TFiltro& ANo, const TTabelaDeTeste& ATabela, int ANivel) {
        if (ANivel == 0 || Numero(4) == 0)
            return Folha(ANo, ATabela, static_cast<TCondicaoFiltro>(Numero(cfDiferente + 1)));
        for (auto filhos = Numero(4); filhos > 0; --filhos)
            Arvore(ANo.Add(Numero(2) ? ofAnd : ofOr), ATabela, ANivel - 1);
    }

    static void Comparar(const TTabelaDeTeste& ATabela, const TFiltro& AFiltro) {
        const std::u16string sql = u"SELECT T.* FROM " + ATabela.Nome + u" T" + AFiltro.BuscarSQLWhere();
        const auto esperadas = ATabela.Filtrar(AFiltro);
        const auto vieram = Consultar(sql);
        EXPECT_TRUE(vieram == esperadas) << ParaUtf8(sql) << ": " << vieram.size() << " of " << esperadas.size();
        GComResultado += !esperadas.empty() && esperadas.size() < ATabela.Linhas.size();
    }

    static inline const unsigned GSemente = std::random_device{}();
    static inline std::mt19937 GGerador{GSemente};
    static inline std::unique_ptr<Exemplos::TBanco> GBanco;
    static inline std::vector<TTabelaDeTeste> GTabelas;
    static inline int GComResultado = 0;  // comparisons in which some rows, not all, came
};

TEST_F(BancoDeDados, ArvoresEmMemoriaENoBanco) {
    SCOPED_TRACE("seed " + std::to_string(GSemente));
    for (const TTabelaDeTeste& tabela : GTabelas)
        for (int vez = 0; vez < (tabela.Nome == u"HOSTIL" ? 900 : 150) && !HasFailure(); ++vez) {
            TFiltro filtro(Numero(2) ? ofAnd : ofOr);
            // Each condition alone first, then trees of them.
            if (const int condicao = cfIgual + vez % 20; vez % 150 < 100 && condicao <= cfDiferente)
                Folha(filtro, tabela, static_cast<TCondicaoFiltro>(condicao));
            else
                Arvore(filtro, tabela, 4);
            Comparar(tabela, filtro);
        }
    EXPECT_EQ(Consultar(u"SELECT * FROM HOSTIL"), GTabelas[2].Filtrar(TFiltro(ofAnd))) << "the table is as it was";
    EXPECT_EQ(Consultar(u"SELECT COUNT(*) FROM RDB$RELATIONS WHERE RDB$SYSTEM_FLAG = 0").at(0).at(0),
              InteiroParaTexto(std::ssize(GTabelas)));
    EXPECT_GT(GComResultado, 300) << "conditions that take all or nothing prove little";
}

TEST_F(BancoDeDados, ComandosDivididosEEstendidos) {
    TFiltro filtro(ofAnd);
    TFiltro& nome = filtro.Add(ofAnd);
    nome.SetTabela(u"t"), nome.SetCampo(u"nome"), nome.SetCondicao(cfContem), nome.SetValor(u"'");
    std::map<std::u16string, int> porUf;
    for (const TLinha& linha : GTabelas[0].Filtrar(filtro)) ++porUf[linha[2].value()];
    std::vector<TLinha> esperadas;
    for (const auto& [uf, quantos] : porUf) esperadas.push_back({uf, InteiroParaTexto(quantos)});
    ASSERT_GT(esperadas.size(), 3U);

    // The statement decides between WHERE and AND, the condition goes in front of its tail.
    for (const std::u16string_view onde : {u"", u" WHERE t.codigo > 0"})
        for (const std::u16string_view cauda : {u" GROUP BY t.uf ORDER BY t.uf", u" GROUP BY t.uf"}) {
            TOryUtilsManipulacaoSQL sql;
            sql.SetScriptSQL(u"SELECT t.uf, COUNT(*) FROM municipio t" + std::u16string(onde) + std::u16string(cauda));
            EXPECT_EQ(
                Consultar(sql.GetSQLPrincipal() + TOryUtilsManipulacaoSQL::BuscarOperadorSQL(sql.GetSQLPrincipal()) +
                          filtro.BuscarSQL() + sql.GetSQLAdicional()),
                esperadas);
        }

    const std::u16string decimal =
        TOryUtilsManipulacaoSQL::FormatarParametroPesquisa(u"1.234,56", ftCurrency, fppPesquisaBancoDados);
    EXPECT_EQ(Consultar(u"SELECT CAST(" + decimal + u" * 2 AS NUMERIC(9, 2)) FROM RDB$DATABASE").at(0).at(0),
              u"2469.12");
}

}  // namespace
}  // namespace OryUtils
