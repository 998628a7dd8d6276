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

class BancoDeDados : public testing::Test {
protected:
    static void SetUpTestSuite() {
        GBanco = std::make_unique<Exemplos::TBanco>(Exemplos::TBanco::Criar(ORY_PASTA_DE_TESTE "/condicoes.fdb"));
        const std::filesystem::path pasta = ORY_PASTA_DO_PROJETO "/examples";
        Exemplos::CriarTabelas(*GBanco, pasta);
        GTabelas = {{u"MUNICIPIO", {{u"CODIGO", true}, {u"NOME"}, {u"UF"}}, Exemplos::LerMunicipios(pasta)},
                    {u"BANCO", {{u"NOME"}, {u"CNPJ"}, {u"APELIDO"}}, Exemplos::LerBancos(pasta)}};
    }
    static void TearDownTestSuite() { GBanco.reset(); }

    static std::vector<TLinha> Consultar(const std::u16string& ASql) {
        auto linhas = GBanco->Consultar(ASql);
        std::sort(linhas.begin(), linhas.end());
        return linhas;
    }
    static void Comparar(const TTabelaDeTeste& ATabela, const TFiltro& AFiltro) {
        const std::u16string sql = u"SELECT T.* FROM " + ATabela.Nome + u" T" + AFiltro.BuscarSQLWhere();
        const auto esperadas = ATabela.Filtrar(AFiltro);
        const auto vieram = Consultar(sql);
        EXPECT_TRUE(vieram == esperadas) << ParaUtf8(sql) << ": " << vieram.size() << " of " << esperadas.size();
        GComResultado += !esperadas.empty() && esperadas.size() < ATabela.Linhas.size();
    }

    static inline std::unique_ptr<Exemplos::TBanco> GBanco;
    static inline std::vector<TTabelaDeTeste> GTabelas;
    static inline int GComResultado = 0;  // comparisons in which some rows, not all, came
};

/// Draws conditions whose values come from the rows themselves.
class TSorteio {
public:
    explicit TSorteio(unsigned ASemente) : FGerador(ASemente) {}
    unsigned Numero(std::size_t AAte) { return static_cast<unsigned>(FGerador() % AAte); }

    void Folha(TFiltro& ANo, const TTabelaDeTeste& ATabela, TCondicaoFiltro ACondicao) {
        FColuna = Numero(ATabela.Colunas.size());
        const TColunaEmMemoria& coluna = ATabela.Colunas[FColuna];
        const bool busca = ACondicao == cfIniciaCom || ACondicao == cfTerminaCom || ACondicao == cfContem;
        ANo.SetTabela(u"t");
        ANo.SetCampo(coluna.Nome);
        ANo.SetCondicao(ACondicao);
        ANo.SetQuoteStr(!coluna.Inteira);
        ANo.SetUsarUpperCase(!coluna.Inteira && Numero(2));
        std::u16string texto = Celula(ATabela);
        if (busca && texto.size() > 2) texto = texto.substr(Numero(2) ? 0 : Numero(texto.size()), 1 + Numero(4));
        if (ANo.GetUsarUpperCase() && Numero(4)) texto = MaiusculaDe(texto);
        const auto valor = [&](const std::u16string& A) {
            return coluna.Inteira ? Variant(TextoParaInt64(A)) : Variant(A);
        };
        if (busca)
            ANo.SetValor(texto);
        else if (ACondicao == cfBetween)
            ANo.SetValor(std::vector<Variant>{valor(texto), valor(Celula(ATabela))});
        else if (ACondicao == cfIn || ACondicao == cfNotIn) {
            std::vector<Variant> itens;
            for (auto quantos = 1 + Numero(256); quantos > 0; --quantos) itens.push_back(valor(Celula(ATabela)));
            ANo.SetValor(std::move(itens));
        } else
            ANo.SetValor(valor(texto));
    }
    void Arvore(TFiltro& ANo, const TTabelaDeTeste& ATabela, int ANivel) {
        if (ANivel == 0 || Numero(4) == 0)
            return Folha(ANo, ATabela, static_cast<TCondicaoFiltro>(Numero(cfDiferente + 1)));
        for (auto filhos = Numero(4); filhos > 0; --filhos)
            Arvore(ANo.Add(Numero(2) ? ofAnd : ofOr), ATabela, ANivel - 1);
    }

private:
    std::u16string Celula(const TTabelaDeTeste& ATabela) {
        while (true)
            if (const auto& celula = ATabela.Linhas[Numero(ATabela.Linhas.size())].at(FColuna)) return *celula;
    }

    std::mt19937 FGerador;
    std::size_t FColuna = 0;
};

TEST_F(BancoDeDados, ArvoresEmMemoriaENoBanco) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(semente));
    TSorteio sorteio(semente);
    for (const TTabelaDeTeste& tabela : GTabelas)
        for (int vez = 0; vez < 150; ++vez) {
            TFiltro filtro(sorteio.Numero(2) ? ofAnd : ofOr);
            // Each condition alone first, then trees of them.
            if (const int condicao = cfIgual + vez % 20; vez < 100 && condicao <= cfDiferente)
                sorteio.Folha(filtro, tabela, static_cast<TCondicaoFiltro>(condicao));
            else
                sorteio.Arvore(filtro, tabela, 4);
            Comparar(tabela, filtro);
        }
    EXPECT_GT(GComResultado, 70) << "conditions that take all or nothing prove little";
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
