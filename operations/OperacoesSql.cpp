#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"
#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "operations/Vinculo.hpp"

namespace Ory {
namespace {

using OryUtils::TOryUtilsFiltroSql;
using C = OryUtils::TOryUtilsManipulacaoSQL;

/// The properties of one node, its children left out; a name that is no property is refused.
void LerPropriedade(TOryUtilsFiltroSql& ANo, const std::string& ANome, const TJson& AValor) {
    if (ANome == "tabela")
        ANo.SetTabela(LerTexto(AValor));
    else if (ANome == "campo")
        ANo.SetCampo(LerTexto(AValor));
    else if (ANome == "condicao")
        ANo.SetCondicao(static_cast<OryUtils::TCondicaoFiltro>(
            LerInteiro(AValor, "TCondicaoFiltro", OryUtils::cfNenhum, OryUtils::cfDiferente)));
    else if (ANome == "operador")
        ANo.SetOperador(static_cast<OryUtils::TOperadorFiltro>(
            LerInteiro(AValor, "TOperadorFiltro", OryUtils::ofAnd, OryUtils::ofOr)));
    else if (ANome == "valor")
        ANo.SetValor(LerVariante(AValor));
    else if (ANome == "quote")
        ANo.SetQuoteStr(LerLogico(AValor));
    else if (ANome == "upper")
        ANo.SetUsarUpperCase(LerLogico(AValor));
    else
        throw EArgumento("o filtro não tem a propriedade \"" + ANome + "\"");
}

/// Of any depth: the nodes still to be read wait in a list.
std::unique_ptr<TOryUtilsFiltroSql> LerFiltro(const TJson& AArvore) {
    struct TPendente {
        const TJson* Json;
        TOryUtilsFiltroSql* No;
    };
    auto raiz = std::make_unique<TOryUtilsFiltroSql>(OryUtils::ofAnd);
    std::vector<TPendente> pendentes{{&AArvore, raiz.get()}};
    while (!pendentes.empty()) {
        const auto [json, no] = pendentes.back();
        pendentes.pop_back();
        if (!json->is_object()) RecusarArgumento("filtro (um objeto)", *json);
        for (const auto& [nome, valor] : json->items())
            if (nome != "filhos") LerPropriedade(*no, nome, valor);
        const auto filhos = json->find("filhos");
        if (filhos == json->end()) continue;
        if (!filhos->is_array()) RecusarArgumento("filhos (uma lista de filtros)", *filhos);
        for (const TJson& filho : *filhos) pendentes.push_back({&filho, &no->Add(OryUtils::ofAnd)});
    }
    return raiz;
}

}  // namespace

template <>
struct TTipoJson<TOryUtilsFiltroSql> {
    static constexpr std::string_view Nome = "filtro";
    static constexpr bool TextoCru = false;
    using TGuardado = std::unique_ptr<TOryUtilsFiltroSql>;
    static TGuardado Ler(const TJson& AValor) { return LerFiltro(AValor); }
    static const TOryUtilsFiltroSql& Passar(const TGuardado& AGuardado) { return *AGuardado; }
};

namespace {

std::u16string MontarFiltroSql(const TOryUtilsFiltroSql& AFiltro, const TListaDeTextos& ATabelas,
                               std::u16string_view AVariante) {
    if (AVariante.empty()) return AFiltro.BuscarSQL(ATabelas);
    if (AVariante == u"And") return AFiltro.BuscarSQLAnd(ATabelas);
    if (AVariante == u"Or") return AFiltro.BuscarSQLOr(ATabelas);
    if (AVariante == u"Where") return AFiltro.BuscarSQLWhere(ATabelas);
    throw EArgumento("argumento 3: a variante é \"\", \"And\", \"Or\" ou \"Where\"");
}

TListaDeTextos SepararBlocosSQL(std::u16string_view ASQL) {
    C sql;
    sql.SetScriptSQL(ASQL);
    return {sql.GetSQLPrincipal(), sql.GetSQLAdicional()};
}

// clang-format off
constexpr auto COperacoes = Ordenar(std::array{
    Operacao<MontarFiltroSql>("MontarFiltroSql"),
    Operacao<SepararBlocosSQL>("SepararBlocosSQL"),
    Operacao<C::BuscarOperadorSQL>("BuscarOperadorSQL"),
    Operacao<C::FormatarCondicaoComOperadorSQL>("FormatarCondicaoComOperadorSQL"),
    Operacao<C::CriarCondicaoSQL>("CriarCondicaoSQL"),
    Operacao<C::FormatarParametroPesquisa>("FormatarParametroPesquisa"),
});
// clang-format on
static_assert(NomesSaoUnicos(COperacoes));

}  // namespace

std::span<const TOperacao> BuscarOperacoesDeSql() noexcept { return COperacoes; }

}  // namespace Ory
