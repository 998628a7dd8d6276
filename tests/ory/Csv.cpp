#include "conferir/Csv.hpp"

#include "ory/CsvDevagar.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

TRegistros LerTudo(std::string_view ATexto, std::size_t ABloco, std::size_t APedaco) {
    Ory::TEntradaDeTexto entrada(ATexto, APedaco);
    Ory::TLeitorDeRegistros leitor(entrada, ';', 1000, {.Bloco = ABloco});
    TRegistros registros;
    while (leitor.Proximo()) registros.emplace_back(leitor.GetCampos().begin(), leitor.GetCampos().end());
    return registros;
}

TEST(Csv, LeOQueEscrevemPorAi) {
    // Quotes hold line breaks, delimiters and quotes; within an unquoted field, or behind the closing one, they are
    // data.
    const TRegistros esperado{{"a\nb", "c;\"d"}, {"5\" x", "y\"z"}, {"ab\r", ""}, {"1", "2"}};
    EXPECT_EQ(LerTudo("\"a\nb\";\"c;\"\"d\"\r\n5\" x;y\"z\n\"a\"b\r;\"\"\r\n1;2", 4, 3), esperado);
}

TEST(Csv, BlocosDeQualquerTamanhoDaoOsMesmosRegistros) {
    const unsigned semente = std::random_device()();
    SCOPED_TRACE("semente " + std::to_string(semente));
    std::mt19937 sorteio(semente);
    constexpr std::string_view CAlfabeto("ab;\"\"\r\n\n;;x\0", 12);
    for (int rodada = 0; rodada < 300; ++rodada) {
        std::string texto;
        for (auto n = sorteio() % 40; n > 0; --n) texto += CAlfabeto[sorteio() % CAlfabeto.size()];
        bool abertas = false;
        const TRegistros esperado = LerDevagar(texto, ';', abertas);
        const std::string comMarca = (rodada % 2 ? "\uFEFF" : "") + texto;  // an editor's mark changes nothing
        for (std::size_t bloco = 1; bloco <= comMarca.size() + 1; ++bloco) try {
                ASSERT_EQ(LerTudo(comMarca, bloco, 1 + bloco % 3), esperado) << testing::PrintToString(texto) << bloco;
                EXPECT_FALSE(abertas) << testing::PrintToString(texto);
            } catch (const Ory::EFalha&) {
                EXPECT_TRUE(abertas) << testing::PrintToString(texto);
            }
    }
}

TEST(Csv, ReconheceODelimitador) {
    EXPECT_EQ(Ory::DetectarDelimitador("nome,cnpj\n1;2;3;4"), ',');
    EXPECT_EQ(Ory::DetectarDelimitador("nome;cnpj\n"), ';');
    EXPECT_EQ(Ory::DetectarDelimitador("\"a,b,c\";d\n"), ';');
    EXPECT_EQ(Ory::DetectarDelimitador("cnpj\n"), ';');
}

}  // namespace
