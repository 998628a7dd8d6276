#include "Apoio.hpp"

#include <gtest/gtest.h>

TEST(Numeros, FormulaMostraAExpressaoResolvida) {
    EXPECT_EQ(Rodar({"formula", "SQR(4)+x*Y", "X=1.5", "y=2,5"}).Saida, "2+1,5*2,5 = 5,75\n");
    EXPECT_EQ(Rodar({"formula", "2/3", "--ajuste", "truncamento"}).Saida, "2/3 = 0,66\n");
    EXPECT_EQ(Rodar({"formula", "Z+1"}), (TRodada{1, "", "Variável 'Z' não existe.\n"}));
}

TEST(Numeros, ExtensoDaLinhaDeComandoEDaEntrada) {
    EXPECT_EQ(Rodar({"extenso", "1.234,5", "2.50"}).Saida,
              "UM MIL E DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA CENTAVOS\nDOIS REAIS E CINQUENTA CENTAVOS\n");
    EXPECT_EQ(Rodar({"extenso", "1.000"}).Saida, "UM MIL REAIS\n") << "a point parts thousands";
    EXPECT_EQ(Rodar({"formula", "x*1", "x=1.234"}).Saida, "1234*1 = 1234\n") << "as in an amount";
    EXPECT_NE(Rodar({"extenso", "1.00.0"}).Erro.find("1.00.0"), std::string::npos) << "as it was written";
    const TRodada rodada = Rodar({"extenso"}, "1\r\nabc\n0,01");
    EXPECT_EQ(rodada.Saida, "UM REAL\n\nUM CENTAVO DE REAL\n") << "one line for each line";
    EXPECT_EQ(rodada.Status, 1);
}
