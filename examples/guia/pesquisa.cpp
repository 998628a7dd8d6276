// What a search screen asks the database for: the user's choices become conditions of the statement.
#include "oryutils/runtime/Caixa.hpp"
#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"
#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "guia/Escrever.hpp"

#include <string>
#include <vector>

using namespace OryUtils;

// [condicao]
TOryUtilsFiltroSql& Acrescentar(TOryUtilsFiltroSql& AGrupo, std::u16string_view ACampo, TCondicaoFiltro ACondicao,
                                Variant AValor) {
    TOryUtilsFiltroSql& condicao = AGrupo.Add(ofAnd);
    condicao.SetTabela(u"c");
    condicao.SetCampo(ACampo);
    condicao.SetCondicao(ACondicao);
    condicao.SetQuoteStr(AValor.GetTexto() != nullptr || AValor.GetItens() != nullptr);
    condicao.SetValor(std::move(AValor));
    return condicao;
}
// [condicao]

// [escolhas]
struct TEscolhas {
    std::u16string Nome{};
    std::vector<std::u16string> UFs{};
    std::u16string CreditoMinimo{};
    bool SoComEmailOuFone = false;
};
// [escolhas]

// [montar]
std::u16string MontarConsulta(const TEscolhas& AEscolhas) {
    TOryUtilsFiltroSql filtro(ofAnd);
    if (!AEscolhas.Nome.empty())
        Acrescentar(filtro, u"nome", cfContem, MaiusculaDe(AEscolhas.Nome)).SetUsarUpperCase(true);
    if (!AEscolhas.UFs.empty())
        Acrescentar(filtro, u"uf", cfIn, std::vector<Variant>(AEscolhas.UFs.begin(), AEscolhas.UFs.end()));
    if (!AEscolhas.CreditoMinimo.empty())
        Acrescentar(filtro, u"credito", cfMaiorIgual,
                    TOryUtilsManipulacaoSQL::FormatarParametroPesquisa(AEscolhas.CreditoMinimo, ftCurrency,
                                                                       fppPesquisaBancoDados));
    if (AEscolhas.SoComEmailOuFone) {
        TOryUtilsFiltroSql& contato = filtro.Add(ofOr);
        Acrescentar(contato, u"email", cfIsNotNull, {});
        Acrescentar(contato, u"fone", cfIsNotNull, {});
    }
    TOryUtilsManipulacaoSQL consulta;
    consulta.SetScriptSQL(u"SELECT c.codigo, c.nome FROM cliente c ORDER BY c.nome");
    return consulta.GetSQLPrincipal() + filtro.BuscarSQLWhere() + consulta.GetSQLAdicional();
}
// [montar]

int main() {
    // [uso]
    Escrever(MontarConsulta({}));
    Escrever(MontarConsulta({.Nome = u"d'ávila", .UFs = {u"RS", u"SC"}}));
    Escrever(MontarConsulta({.CreditoMinimo = u"1.500,00", .SoComEmailOuFone = true}));
    Escrever(MontarConsulta({.Nome = u"' OR 1 = 1 --"}));
    // [uso]
}
