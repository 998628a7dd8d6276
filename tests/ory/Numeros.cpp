#include "Apoio.hpp"

#include <gtest/gtest.h>

TEST(Numeros, OperacoesPeloNome) {
    ConferirChamadas({
        {R"({"op":"BuscarValorPorExtenso","args":["1001.01"]})", R"({"resultado":"UM MIL E UM REAIS E UM CENTAVO"})"},
        {R"({"op":"BuscarValorPorExtenso","args":[-1]})",
         R"({"erro":"O valor deve ser sempre maior ou igual a 0,00","classe":"Exception"})"},
        {R"({"op":"Arredondar","args":["2.345"]})", R"({"resultado":"2.35"})"},
        {R"({"op":"Arredondar:metodo","args":["-2.341",3,2,10]})", R"({"resultado":"-2.35"})"},
        {R"({"op":"Arredondar:metodo","args":["1",1,256,10]})",
         R"({"erro":"esperado: inteiro de 0 a 255","classe":"EArgumento"})"},
        {R"({"op":"SomarCombinacaoBinaria","args":[[true,false,true],1,false]})", R"({"resultado":5})"},
        {R"({"op":"CalcularFormula","args":["x*TAXA",{"X":"1.5","Taxa":3},0,2]})", R"({"resultado":"4.5"})"},
        {R"({"op":"CalcularFormula","args":["10/3",{},1,2]})", R"({"resultado":"3.33"})"},
        {R"({"op":"CalcularFormula","args":["Y",{},0,2]})",
         R"({"erro":"Variável 'Y' não existe.","classe":"Exception"})"},
    });
}

TEST(Numeros, FormulaMostraAExpressaoResolvida) {
    EXPECT_EQ(Rodar({"formula", "SQR(4)+x*Y", "X=1.5", "y=2,5"}).Saida, "2+1,5*2,5 = 5,75\n");
    EXPECT_EQ(Rodar({"formula", "2/3", "--ajuste", "truncamento"}).Saida, "2/3 = 0,66\n");
    const TRodada errada = Rodar({"formula", "Z+1"});
    EXPECT_EQ(errada.Status, 1);
    EXPECT_EQ(errada.Erro, "Variável 'Z' não existe.\n");
    EXPECT_EQ(Rodar({"formula", "1", "semvalor"}).Status, 2);
}

TEST(Numeros, ExtensoDaLinhaDeComandoEDaEntrada) {
    EXPECT_EQ(Rodar({"extenso", "1.234,5", "2.50"}).Saida,
              "UM MIL E DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA CENTAVOS\nDOIS REAIS E CINQUENTA CENTAVOS\n");
    const TRodada rodada = Rodar({"extenso"}, "1\r\nabc\n0,01");
    EXPECT_EQ(rodada.Saida, "UM REAL\n\nUM CENTAVO DE REAL\n") << "one line for each line";
    EXPECT_EQ(rodada.Status, 1);
}
