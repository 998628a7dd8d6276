// What stands behind a search screen: the user's choices become a filter, the filter a SELECT, and Firebird runs it.
//   pesquisa [FILE]     the database that is created, pesquisa.fdb where none is given
#include "oryutils/runtime/Caixa.hpp"
#include "oryutils/runtime/Utf.hpp"
#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"
#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "pesquisa/Dados.hpp"

#include <cstdio>
#include <exception>

namespace {

using namespace OryUtils;

/// The fields of the screen, as the user left them; what is empty restricts nothing.
struct TEscolhas {
    std::u16string NomeComeca{};
    std::u16string NomeContem{};
    std::vector<std::u16string> Estados{};
    std::optional<int> CodigoDe{}, CodigoAte{};
};

TOryUtilsFiltroSql& NovaCondicao(TOryUtilsFiltroSql& AGrupo, std::u16string_view ACampo, TCondicaoFiltro ACondicao,
                                 Variant AValor, bool AEntreAspas) {
    TOryUtilsFiltroSql& condicao = AGrupo.Add(ofAnd);
    condicao.SetTabela(u"m");
    condicao.SetCampo(ACampo);
    condicao.SetCondicao(ACondicao);
    condicao.SetValor(std::move(AValor));
    condicao.SetQuoteStr(AEntreAspas);
    return condicao;
}

void MontarFiltro(TOryUtilsFiltroSql& AFiltro, const TEscolhas& AEscolhas) {
    if (!AEscolhas.NomeComeca.empty())  // the column is turned to capitals, the value is ours to turn
        NovaCondicao(AFiltro, u"nome", cfIniciaCom, MaiusculaDe(AEscolhas.NomeComeca), true).SetUsarUpperCase(true);
    if (!AEscolhas.NomeContem.empty())
        NovaCondicao(AFiltro, u"nome", cfContem, MaiusculaDe(AEscolhas.NomeContem), true).SetUsarUpperCase(true);
    if (!AEscolhas.Estados.empty())
        NovaCondicao(AFiltro, u"uf", cfIn, std::vector<Variant>(AEscolhas.Estados.begin(), AEscolhas.Estados.end()),
                     true);
    if (AEscolhas.CodigoDe && AEscolhas.CodigoAte)
        NovaCondicao(AFiltro, u"codigo", cfBetween, std::vector<Variant>{*AEscolhas.CodigoDe, *AEscolhas.CodigoAte},
                     false);
}

void Mostrar(std::u16string_view ATexto) { std::puts(ParaUtf8(ATexto).c_str()); }

void Pesquisar(Exemplos::TBanco& ABanco, std::u16string_view ATitulo, std::u16string_view AConsulta,
               const TEscolhas& AEscolhas) {
    TOryUtilsFiltroSql filtro(ofAnd);
    MontarFiltro(filtro, AEscolhas);
    TOryUtilsManipulacaoSQL consulta;
    consulta.SetScriptSQL(AConsulta);
    const std::u16string sql = consulta.GetSQLPrincipal() + filtro.BuscarSQLWhere() + consulta.GetSQLAdicional();

    Mostrar(ATitulo);
    Mostrar(u"  " + sql);
    const std::vector<Exemplos::TLinha> linhas = ABanco.Consultar(sql);
    for (const Exemplos::TLinha& linha : linhas) {
        std::u16string texto = u"   ";
        for (const Exemplos::TCelula& celula : linha) texto += u" " + celula.value_or(u"(nulo)");
        Mostrar(texto);
    }
    Mostrar(linhas.empty() ? u"    nada encontrado\n" : u"");
}

void Executar(const char* AArquivo) {
    Exemplos::TBanco banco = Exemplos::TBanco::Criar(AArquivo);
    Exemplos::CriarTabelas(banco, ORY_PASTA_DO_PROJETO "/examples");

    constexpr std::u16string_view CLista = u"SELECT m.codigo, m.nome, m.uf FROM municipio m ORDER BY m.nome";
    constexpr std::u16string_view CContagem = u"SELECT m.uf, COUNT(*) FROM municipio m GROUP BY m.uf";
    Pesquisar(banco, u"Começa com \"são j\", no Rio Grande do Sul ou em Santa Catarina:", CLista,
              {.NomeComeca = u"são j", .Estados = {u"RS", u"SC"}});
    Pesquisar(banco, u"Contém \"d'oeste\", códigos de São Paulo:", CLista,
              {.NomeContem = u"d'oeste", .CodigoDe = 3500000, .CodigoAte = 3599999});
    Pesquisar(banco, u"Quantos contêm \"santa\", por estado do Sul:", CContagem,
              {.NomeContem = u"santa", .Estados = {u"PR", u"SC", u"RS"}});
    Pesquisar(banco, u"O que um curioso digitou no campo do nome:", CLista,
              {.NomeComeca = u"' OR 1 = 1; DROP TABLE municipio --"});
}

}  // namespace

int main(int AQuantos, char** AArgumentos) try {
    Executar(AQuantos > 1 ? AArgumentos[1] : "pesquisa.fdb");
    return 0;
} catch (const std::exception& erro) {
    std::fprintf(stderr, "pesquisa: %s\n", erro.what());
    return 1;
}
