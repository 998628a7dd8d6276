#include "operacoes/Operacoes.hpp"

#include <gtest/gtest.h>

namespace {

struct TCaso {
    const char* Requisicao;
    const char* Resposta;
};

TEST(ChamarSql, FiltroEComandos) {
    constexpr TCaso CCasos[] = {
        {R"({"op":"MontarFiltroSql","args":[{"tabela":"f","campo":"nome","condicao":12,"valor":"d'á"},[],""]})",
         R"({"resultado":"( F.NOME LIKE '%d''á%' )"})"},
        {R"({"op":"MontarFiltroSql","args":[{"operador":1,"filhos":[
            {"tabela":"f","campo":"n","condicao":6,"valor":[1,"x"],"quote":true},
            {"operador":0,"filhos":[{"tabela":"f","campo":"m","condicao":1,"valor":7,"upper":true},
                                    {"tabela":"g","campo":"m","condicao":8}]},
            {"tabela":"g","campo":"k","condicao":13,"valor":[2,3]}]},["F"],"Where"]})",
         R"({"resultado":" WHERE ( ( F.N IN ('1','x' ) ) OR ( ( UPPER(F.M) = UPPER(7) ) ) )"})"},
        {R"({"op":"MontarFiltroSql","args":[{"filhos":[]},[],"And"]})", R"({"resultado":""})"},
        {R"({"op":"MontarFiltroSql","args":[{"tabela":"f","campo":"n","condicao":13,"valor":[1]},[],""]})",
         R"({"erro":"Número de parâmetros incorreto para a pesquisa com BETWEEN.","classe":"Exception"})"},
        {R"({"op":"MontarFiltroSql","args":[{"tabela":"f","campo":"n","condicao":12,"valor":5},[],""]})",
         R"({"erro":"Não foi possível converter a variante do tipo texto para o tipo número.","classe":"EVariantTypeCastError"})"},
        {R"({"op":"MontarFiltroSql","args":[{"nome":1},[],""]})",
         R"({"erro":"argumento 1: o filtro não tem a propriedade \"nome\"","classe":"EArgumento"})"},
        {R"({"op":"MontarFiltroSql","args":[{},[],"where"]})",
         R"({"erro":"argumento 3: a variante é \"\", \"And\", \"Or\" ou \"Where\"","classe":"EArgumento"})"},
        {R"({"op":"SepararBlocosSQL","args":["T ORDER BY A"]})", R"({"resultado":["T "," ORDER BY A"]})"},
        {R"({"op":"CriarCondicaoSQL","args":[["a","b"]," OR "]})", R"({"resultado":"((a) OR b)"})"},
        {R"({"op":"FormatarParametroPesquisa","args":["1.234,56",7,0]})", R"({"resultado":"1234.56"})"},
        {R"({"op":"Iif","args":[true,[1,[2,null]],0]})", R"({"resultado":[1,[2,null]]})"},
    };
    for (const TCaso& c : CCasos) EXPECT_EQ(Ory::Chamar(c.Requisicao), c.Resposta);
}

// Groups within groups may not exhaust the stack; nor may lists within lists.
TEST(ChamarSql, ArvoreFunda) {
    constexpr int CNiveis = 200'000;
    std::string arvore;
    for (int i = 0; i < CNiveis; ++i) arvore += R"({"filhos":[)";
    arvore += R"({"tabela":"f","campo":"x","condicao":8})";
    for (int i = 0; i < CNiveis; ++i) arvore += "]}";
    const std::string resposta = Ory::Chamar(R"({"op":"MontarFiltroSql","args":[)" + arvore + R"(,[],""]})");
    EXPECT_EQ(resposta.size(), std::string(R"({"resultado":"( F.X IS NULL  )"
})").size() + CNiveis * 4);

    const std::string lista = std::string(CNiveis, '[') + std::string(CNiveis, ']');
EXPECT_EQ(Ory::Chamar(R"({"op":"Iif","args":[true,)" + lista + ",0]}"),
          R"({"erro":"argumento 2: lista com níveis demais","classe":"EArgumento"})");
}

}  // namespace
