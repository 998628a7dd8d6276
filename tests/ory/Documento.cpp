#include "Apoio.hpp"

namespace {

TEST(Documento, DizOQueEhUmNumero) {
    EXPECT_EQ(Rodar({"documento", "telefone", "+55 (11) 98765-4321"}), (TRodada{0,
                                                                                "Documento  telefone (telefone)\n"
                                                                                "Válido     sim\n"
                                                                                "Escrito    (11) 98765-4321\n"
                                                                                "Guardado   11987654321\n"
                                                                                "Área       11\n"
                                                                                "Tipo       celular\n",
                                                                                ""}));
    EXPECT_EQ(Rodar({"documento", "cpf", "123"}),
              (TRodada{1, "Documento  CPF (cpf)\nVálido     não\nMotivo     O CPF deve ter 11 dígitos.\n", ""}));
    EXPECT_EQ(Rodar({"documento", "ie", "77.918.780-6", "--uf", "pa", "--json"}).Saida,
              R"([{"escrito":"77.918.780-6","fatos":[],"guardado":"779187806","motivo":"","tipo":"ie","valido":true}])"
              "\n");
    const TRodada regra = Rodar({"documento", "ncm"});
    EXPECT_NE(regra.Saida.find("capítulo de 01 a 97"), std::string::npos) << regra;
    EXPECT_NE(Rodar({"documento"}).Saida.find("\nprocesso "), std::string::npos);
    EXPECT_EQ(Rodar({"documento", "rg", "1"}).Status, 2);
    EXPECT_EQ(Rodar({"documento", "cpf", "529", "982"}).Status, 2) << "a number parted by the shell";
}

TEST(Documento, DizOQueUmNumeroPodeSer) {
    const TRodada possivel = Rodar({"documento", "52998224725"});
    EXPECT_EQ(possivel.Status, 0);
    EXPECT_NE(possivel.Saida.find("(cpf)"), std::string::npos) << possivel;
    EXPECT_EQ(possivel.Saida.find("(pis)"), std::string::npos) << possivel;
    const TRodada quase = Rodar({"documento", "52998224724"});
    EXPECT_EQ(quase.Status, 1);
    EXPECT_NE(quase.Saida.find("  cpf: O CPF tem o dígito verificador errado.\n"), std::string::npos) << quase;
    EXPECT_EQ(Rodar({"documento", "\x1b[31mx"}).Saida.find('\x1b'), std::string::npos) << "no text drives the terminal";
}

TEST(Documento, GeraOsMesmosPelaSemente) {
    const std::string tres = Rodar({"gerar", "cpf", "--quantidade", "3", "--semente", "7"}).Saida;
    EXPECT_EQ(tres.size(), 36u);
    EXPECT_EQ(tres.substr(12, 12), Rodar({"gerar", "cpf", "--semente", "8"}).Saida);
    EXPECT_EQ(Rodar({"gerar", "cep", "--uf", "AC", "--com-mascara"}).Saida.substr(0, 3), "699");
    EXPECT_EQ(Rodar({"gerar", "ie"}), (TRodada{2, "", "ory: ie pede --uf\n"}));
    EXPECT_EQ(Rodar({"gerar", "ie", "--uf", "XX"}), (TRodada{2, "", "ory: não há a UF XX\n"}));
    EXPECT_EQ(Rodar({"gerar", "cpf", "--semente", "sete"}).Status, 2);
}

}  // namespace
