// What --saida may be besides a file.
#include "files/ApoioArquivos.hpp"
#include "ory/Apoio.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

TEST(Conferir, SaidaDeixaAtalhosEDispositivosNoLugar) {
    const TPastaTemporaria pasta;
    const auto alvo = pasta / u"alvo.csv", atalho = pasta / u"atalho.csv", solto = pasta / u"solto.csv";
    GravarBytes(alvo, "antes");
    std::filesystem::create_symlink("alvo.csv", atalho);
    std::filesystem::create_symlink("novo.csv", solto);
    const std::string esperado = "cpf;cpf_veredito;cpf_formatado\n52998224725;valido;529.982.247-25\n";
    for (const auto& nome : {atalho, solto})
        EXPECT_EQ(Rodar({"conferir", "-", "--saida", nome.string()}, "cpf\n52998224725\n").Status, 0);
    EXPECT_EQ(LerBytes(alvo), esperado);
    EXPECT_EQ(LerBytes(pasta / u"novo.csv"), esperado);
    EXPECT_TRUE(std::filesystem::is_symlink(atalho) && std::filesystem::is_symlink(solto));
    EXPECT_EQ(Rodar({"conferir", "-", "--saida", "/dev/null"}, "cpf\n52998224725\n").Status, 0);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
}

}  // namespace
