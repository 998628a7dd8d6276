#include "Apoio.hpp"

namespace {

TEST(ChamarSql, FiltroEComandos) {
    ConferirChamadas({
        {R"j({"op":"MontarFiltroSql","args":[{"tabela":"f","campo":"nome","condicao":12,"valor":"d'á"},[],""]})j",
         R"j({"resultado":"( F.NOME LIKE '%d''á%' )"})j"},
        {R"j({"op":"MontarFiltroSql","args":[{"operador":1,"filhos":[
            {"tabela":"f","campo":"n","condicao":6,"valor":[1,"x"],"quote":true},
            {"operador":0,"filhos":[{"tabela":"f","campo":"m","condicao":1,"valor":7,"upper":true},
                                    {"tabela":"g","campo":"m","condicao":8}]},
            {"tabela":"g","campo":"k","condicao":13,"valor":[2,3]}]},["F"],"Where"]})j",
         R"j({"resultado":" WHERE ( ( F.N IN ('1','x' ) ) OR ( ( UPPER(F.M) = UPPER(7) ) ) )"})j"},
        {R"j({"op":"MontarFiltroSql","args":[{"filhos":[]},[],"And"]})j", R"j({"resultado":""})j"},
        {R"j({"op":"MontarFiltroSql","args":[{"tabela":"f","campo":"n","condicao":13,"valor":[1]},[],""]})j",
         R"j({"erro":"Número de parâmetros incorreto para a pesquisa com BETWEEN.","classe":"Exception"})j"},
        {R"j({"op":"MontarFiltroSql","args":[{"tabela":"f","campo":"n","condicao":12,"valor":5},[],""]})j",
         R"j({"erro":"Não foi possível converter a variante do tipo texto para o tipo número.","classe":"EVariantTypeCastError"})j"},
        {R"j({"op":"MontarFiltroSql","args":[{"nome":1},[],""]})j",
         R"j({"erro":"argumento 1: o filtro não tem a propriedade \"nome\"","classe":"EArgumento"})j"},
        {R"j({"op":"MontarFiltroSql","args":[{},[],"where"]})j",
         R"j({"erro":"argumento 3: a variante é \"\", \"And\", \"Or\" ou \"Where\"","classe":"EArgumento"})j"},
        {R"j({"op":"SepararBlocosSQL","args":["T ORDER BY A"]})j", R"j({"resultado":["T "," ORDER BY A"]})j"},
        {R"j({"op":"CriarCondicaoSQL","args":[["a","b"]," OR "]})j", R"j({"resultado":"((a) OR b)"})j"},
        {R"j({"op":"FormatarParametroPesquisa","args":["1.234,56",7,0]})j", R"j({"resultado":"1234.56"})j"},
        {R"j({"op":"Iif","args":[true,[1,[2,null]],0]})j", R"j({"resultado":[1,[2,null]]})j"},
    });
}

// Groups within groups may not exhaust the stack; nor may lists within lists.
TEST(ChamarSql, ArvoreFunda) {
    constexpr int CNiveis = 200'000;
    std::string arvore;
    for (int i = 0; i < CNiveis; ++i) arvore += R"j({"filhos":[)j";
    arvore += R"j({"tabela":"f","campo":"x","condicao":8})j";
    for (int i = 0; i < CNiveis; ++i) arvore += "]}";
    const std::string resposta = Ory::Chamar("{\"op\":\"MontarFiltroSql\",\"args\":[" + arvore + ",[],\"\"]}");
    constexpr std::string_view CFolha = "{\"resultado\":\"( F.X IS NULL  )\"}";
    EXPECT_EQ(resposta.size(), CFolha.size() + CNiveis * 4);

    const std::string lista = std::string(CNiveis, '[') + std::string(CNiveis, ']');
    EXPECT_EQ(Ory::Chamar("{\"op\":\"Iif\",\"args\":[true," + lista + ",0]}"),
              "{\"erro\":\"argumento 2: lista com níveis demais\",\"classe\":\"EArgumento\"}");
}

}  // namespace
