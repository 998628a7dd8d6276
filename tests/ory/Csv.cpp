#include "conferir/Csv.hpp"

#include "conferir/Blocos.hpp"
#include "ory/CsvDevagar.hpp"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

TRegistros LerTudo(std::string_view ATexto, char ADelimitador, std::size_t ABloco, std::size_t APedaco) {
    Ory::TEntradaDeTexto entrada(ATexto, APedaco);
    Ory::TLeitorDeBlocos blocos(entrada, {.Bloco = ABloco, .Registro = 1 << 20});
    blocos.EspiarInicio();
    Ory::TCortadorDeRegistros cortador(ADelimitador);
    TRegistros registros;
    std::string bloco;
    while (blocos.Ler(bloco, cortador) == Ory::TLeitorDeBlocos::leBloco) {
        Ory::TLeitorDeRegistros leitor(bloco, ADelimitador, 1000);
        while (leitor.Proximo()) registros.emplace_back(leitor.GetCampos().begin(), leitor.GetCampos().end());
    }
    return registros;
}

TEST(Csv, LeOQueEscrevemPorAi) {
    using namespace std::string_literals;
    EXPECT_EQ(LerTudo("a;\0b\n"s, ';', 4, 3), (TRegistros{{"a", "\0b"s}})) << "NUL is data";
    EXPECT_EQ(LerTudo("\xEF\xBB\xBFú;b\n", ';', 4, 3), (TRegistros{{"ú", "b"}})) << "mark of UTF-8";
    EXPECT_EQ(LerTudo("", ';', 4, 3), TRegistros());
}

TEST(Csv, BlocosDeQualquerTamanhoDaoOsMesmosRegistros) {
    const unsigned semente = std::random_device()();
    SCOPED_TRACE("semente " + std::to_string(semente));
    std::mt19937 sorteio(semente);
    constexpr std::string_view CAlfabeto = "ab;\"\"\r\n\n;;x";
    for (int rodada = 0; rodada < 300; ++rodada) {
        std::string texto;
        for (auto n = sorteio() % 40; n > 0; --n) texto += CAlfabeto[sorteio() % CAlfabeto.size()];
        texto += "\"\n;";  // closes most of the quotes left open
        TRegistros esperado = LerDevagar(texto, ';');
        Ory::TCortadorDeRegistros cortador(';');
        cortador.Cortar(texto);
        if (cortador.EstahEntreAspas()) continue;
        for (std::size_t bloco = 1; bloco <= texto.size() + 1; ++bloco)
            ASSERT_EQ(LerTudo(texto, ';', bloco, 1 + bloco % 3), esperado) << testing::PrintToString(texto) << bloco;
    }
}

TEST(Csv, ReconheceODelimitador) {
    EXPECT_EQ(Ory::DetectarDelimitador("nome,cnpj\n1;2;3;4"), ',');
    EXPECT_EQ(Ory::DetectarDelimitador("nome;cnpj\n"), ';');
    EXPECT_EQ(Ory::DetectarDelimitador("\"a,b,c\";d\n"), ';');
    EXPECT_EQ(Ory::DetectarDelimitador("cnpj\n"), ';');
}

}  // namespace
