#include "Apoio.hpp"

#include <nlohmann/json.hpp>

// The operations by their names, as programs in other languages call them.

namespace {

/// Of a failure, the message stands for the result.
struct TChamada {
    std::string Operacao, Argumentos, Resultado, Classe = {};
};

TEST(Operacoes, PeloNome) {
    const TChamada chamadas[] = {
        // Each kind of argument and result.
        {"ValidouCnpjCpf", R"([1,"11222333000181"])", "true"},
        {"ValidouCnpjCpf", R"([77,"11222333000181"])", "false"},
        {"RepetirCaractere", R"(["ç",3])", R"("ççç")"},
        {"LimparTexto:chars", R"(["1.2-3",[".","2"]])", R"("1-3")"},
        {"ClearString:chars", R"(["1.2-3",".2"])", R"("1-3")"},
        {"ClearString:strings", R"(["abcabd",["ab","c"]])", R"("d")"},
        {"ConverterTextoComDelimitadorParaStringList", R"(["a;;b",";"])", R"(["a","","b"])"},
        {"ConverterStringListParaTextoComDelimitador", R"([["a","b"],", "])", R"("a, b")"},
        {"ConverterStringListParaTextoComDelimitador", R"([null,";"])", "Argumento <AStringList> não está instanciado.",
         "Exception"},
        {"ConverterTextoParaVetorDeCaracteres:prefixo", R"(["ab",4])", R"("ab\u0000\u0000")"},
        {"ConverterTextoParaVetorDeCaracteres:prefixo", R"(["ab",-1])", R"("")"},
        {"Base64:idaevolta", R"(["ação 😀"])", R"("ação 😀")"},
        {"AllTrim", R"(["\"\\\n\u0001 é"])", R"("\"\\\n\u0001é")"},
        {"BuscarUltimoDiaMes", R"(["2024-02-10T23:59:59.999"])", R"("2024-02-29T00:00:00")"},
        {"BuscarDataHoraMedidaTempo", R"(["2024-01-31",7,1])", R"("2024-02-29T00:00:00")"},
        {"BuscarDataHoraMedidaTempo", R"(["2024-01-31 10:20",3,-1])", R"("2024-01-31T10:19:59")"},
        {"BuscarDataFormatada", R"(["2024-03-05T14:07:09"])", R"("03/05/2024")"},
        {"BuscarDataFormatada:tudo", R"(["2024-03-05T14:07:09",1,"",false])", R"("05/03/2024 14:07:09")"},
        {"BuscarDataFormatada:parametros", R"(["2024-03-05T14:07:09",0,"yyyy",true])", R"("'2024'")"},
        {"ConverterOrientacaoData", R"(["03/05/2024",1])", R"("2024-05-03T00:00:00")"},
        {"ConverterOrientacaoData:livre", R"(["03/05/2024",1])", R"("1899-12-30T00:00:00")"},
        {"BuscarDataFinalDoTrimestre", R"(["2024-02-10"])", R"("2024-03-31T00:00:00")"},
        {"ValidouMetodosRetorno", "[[true,false,true],0]", "false"},
        {"SomarBase", R"([[2,3],"45"])", "23"},
        {"Iif", R"([true,"x",1])", R"("x")"},
        {"Iif", R"([false,"x",0.1])", "0.1"},
        {"Iif", R"([false,"x",2.0])", "2.0"},
        {"Iif", R"([false,"x",null])", "null"},
        {"Iif", R"([false,"x",-9223372036854775808])", "-9223372036854775808"},
        {"Iif", "[true,[1,[2,null]],0]", "[1,[2,null]]"},
        // Numbers are texts, and nothing of them is lost.
        {"BuscarValorPorExtenso", R"(["1001.01"])", R"("UM MIL E UM REAIS E UM CENTAVO")"},
        {"BuscarValorPorExtenso", "[-1]", "O valor deve ser sempre maior ou igual a 0,00", "Exception"},
        {"Arredondar", R"(["2.345"])", R"("2.35")"},
        {"Arredondar:metodo", R"(["-2.341",3,2,10])", R"("-2.35")"},
        {"Arredondar:metodo", R"(["1",1,256,10])", "esperado: inteiro de 0 a 255", "EArgumento"},
        {"SomarCombinacaoBinaria", "[[true,false,true],1,false]", "5"},
        {"CalcularFormula", R"(["x*TAXA",{"X":"1.5","Taxa":3},0,2])", R"("4.5")"},
        {"CalcularFormula", R"(["10/3",{},1,2])", R"("3.33")"},
        {"CalcularFormula", R"(["Y",{},0,2])", "Variável 'Y' não existe.", "Exception"},
        // What the machine says, read.
        {"FormatarBytes", "[9223372036854775807,4]", "8388607"},
        {"ExtrairEnderecoMACComandoARP", R"(["x\r\n 10.0.0.1 0a-1b-2c-3d-4e-5f din"])", R"("0A-1B-2C-3D-4E-5F")"},
        {"VarToIntDef", "[null,7]", "7"},
        {"LinhasDaSaidaDeComando", R"([" a\r\n b \nc\n"])", R"(["a"," b ","c"])"},
        {"ListaIPLocalDaSaidaARP", R"(["\r\nInterface: 10.0.0.2 --- 0x3\n 10.0.0.1\rInterface: 10.0.0.3"])",
         R"(["10.0.0.2","10.0.0.3"])"},
        {"InformacoesDetalhadas", R"(["","",-9223372036854775808,1,9])",
         R"("Informações detalhadas da unidade: \r\n\r\nUnidade:  \r\nNome:  \r\nEspaço total: )"
         R"(-9223372036854775808 \r\nEspaço livre: 1 \r\nEspaço usado: 9223372036854775807 ")"},
        // Versions and files.
        {"CompareVersion", R"(["x","1"])", "'x' não é um valor inteiro válido", "EConvertError"},
        {"DividirVersao", R"(["1.2"])", "[1,0,0,2]"},
        {"OrdenarListaDeVersoes", R"([["2.0.0.0","1","","1.10","1.9"]])", R"(["1","2.0.0.0","","1.9","1.10"])"},
        {"EhArquivoEXE", R"(["A.EXE"])", "true"},
        {"FormatarTamanhoArquivo", "[1536]", R"("1,5 KB")"},
        {"BuscarVersaoArquivo", R"(["/nao/existe.exe"])", R"("")"},
        {"GetVersionFromINI", R"(["/nao/existe.ini"])", R"("")"},
        // Filters and statements.
        {"MontarFiltroSql", R"j([{"tabela":"f","campo":"nome","condicao":12,"valor":"d'á"},[],""])j",
         R"j("( F.NOME LIKE '%d''á%' )")j"},
        {"MontarFiltroSql",
         R"j([{"operador":1,"filhos":[{"tabela":"f","campo":"n","condicao":6,"valor":[1,"x"],"quote":true},)j"
         R"j({"operador":0,"filhos":[{"tabela":"f","campo":"m","condicao":1,"valor":7,"upper":true},)j"
         R"j({"tabela":"g","campo":"m","condicao":8}]},)j"
         R"j({"tabela":"g","campo":"k","condicao":13,"valor":[2,3]}]},["F"],"Where"])j",
         R"j(" WHERE ( ( F.N IN ('1','x' ) ) OR ( ( UPPER(F.M) = UPPER(7) ) ) )")j"},
        {"MontarFiltroSql", R"([{"filhos":[]},[],"And"])", R"("")"},
        {"MontarFiltroSql", R"([{"tabela":"f","campo":"n","condicao":13,"valor":[1]},[],""])",
         "Número de parâmetros incorreto para a pesquisa com BETWEEN.", "Exception"},
        {"MontarFiltroSql", R"([{"tabela":"f","campo":"n","condicao":12,"valor":5},[],""])",
         "Não foi possível converter a variante do tipo texto para o tipo número.", "EVariantTypeCastError"},
        {"MontarFiltroSql", R"([{"nome":1},[],""])", "argumento 1: o filtro não tem a propriedade \"nome\"",
         "EArgumento"},
        {"MontarFiltroSql", R"([{},[],"where"])", "argumento 3: a variante é \"\", \"And\", \"Or\" ou \"Where\"",
         "EArgumento"},
        {"SepararBlocosSQL", R"(["T ORDER BY A"])", R"(["T "," ORDER BY A"])"},
        {"CriarCondicaoSQL", R"j([["a","b"]," OR "])j", R"j("((a) OR b)")j"},
        {"FormatarParametroPesquisa", R"(["1.234,56",7,0])", R"("1234.56")"},
    };
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    for (const auto& [operacao, argumentos, resultado, classe] : chamadas)
        EXPECT_EQ(Ory::Chamar("{\"op\":\"" + operacao + "\",\"args\":" + argumentos + "}"),
                  classe.empty() ? "{\"resultado\":" + resultado + "}"
                                 : "{\"erro\":" + nlohmann::json(resultado).dump() + ",\"classe\":\"" + classe + "\"}")
            << argumentos;
}

// Groups within groups may not exhaust the stack; nor may lists within lists.
TEST(Operacoes, ArvoreFunda) {
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
