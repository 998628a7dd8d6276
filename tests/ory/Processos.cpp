#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Apoio.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace {

using nlohmann::json;

TEST(Processos, TabelaEJsonMostramEsteProcesso) {
    const TRodada emJson = Rodar({"processos", "--json"});
    ASSERT_EQ(emJson.Status, 0);
    const json processos = json::parse(emJson.Saida);
    // The tests of the command are a process of this name, whatever else runs.
    const auto este = std::find_if(processos.begin(), processos.end(), [](const json& AProcesso) {
        return AProcesso["processo"].get<std::string>().starts_with("testes_ory");
    });
    ASSERT_NE(este, processos.end());
    EXPECT_GT((*este)["memoria"].get<std::uint64_t>(), 0U);
    EXPECT_TRUE((*este)["caminho"].get<std::string>().find((*este)["processo"]) != std::string::npos);

    const TRodada tabela = Rodar({"processos", "--usuario", (*este)["usuario"].get<std::string>()});
    EXPECT_EQ(tabela.Status, 0);
    EXPECT_NE(tabela.Saida.find((*este)["caminho"].get<std::string>()), std::string::npos);

    const TRodada nenhum = Rodar({"processos", "--usuario", "conta que nao existe"});
    EXPECT_EQ(nenhum.Saida, "id  memória  usuário  processo  caminho\n");
    EXPECT_EQ(json::parse(Rodar({"processos", "--json", "--usuario", "conta que nao existe"}).Saida), json::array());
}

}  // namespace
