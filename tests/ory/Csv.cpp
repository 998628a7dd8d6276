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

struct TCaso {
    std::string_view Texto;
    TRegistros Esperado;
    const char* Porque;
};

TEST(Csv, LeOQueEscrevemPorAi) {
    using namespace std::string_literals;
    using namespace std::string_view_literals;
    const TCaso casos[] = {
        {"a;b\n1;2\n", {{"a", "b"}, {"1", "2"}}, "LF"},
        {"a;b\r\n1;2\r\n", {{"a", "b"}, {"1", "2"}}, "CR LF"},
        {"a\r;b\n", {{"a\r", "b"}}, "a CR alone is data"},
        {"\"a\nb\";c\nd;e\n", {{"a\nb", "c"}, {"d", "e"}}, "line break inside quotes"},
        {"\"a\"\"b\";\"\"\r\n", {{"a\"b", ""}}, "doubled quote, empty quoted field"},
        {"5\" x;y\"z\n", {{"5\" x", "y\"z"}}, "a quote inside an unquoted field is data"},
        {"\"a\"b;c\n", {{"ab", "c"}}, "text behind the closing quote"},
        {"a;\0b\n"sv, {{"a", "\0b"s}}, "NUL is data"},
        {"\xEF\xBB\xBF"
         "a;b\n",
         {{"a", "b"}},
         "mark of UTF-8"},
        {"", {}, "nothing"},
    };
    for (const TCaso& caso : casos) {
        EXPECT_EQ(LerTudo(caso.Texto, 1 << 20, 1 << 20), caso.Esperado) << caso.Porque;
        EXPECT_EQ(LerTudo(caso.Texto, 4, 3), caso.Esperado) << caso.Porque << ", in small blocks";
    }
}

TEST(Csv, BlocosDeQualquerTamanhoDaoOsMesmosRegistros) {
    const unsigned semente = std::random_device()();
    SCOPED_TRACE("semente " + std::to_string(semente));
    std::mt19937 sorteio(semente);
    constexpr std::string_view CAlfabeto = "ab;\"\"\r\n\n;;x";
    for (int rodada = 0; rodada < 300; ++rodada) {
        std::string texto;
        for (auto n = sorteio() % 40; n > 0; --n) texto += CAlfabeto[sorteio() % CAlfabeto.size()];
        bool abertas = false;
        const TRegistros esperado = LerDevagar(texto, ';', abertas);
        for (std::size_t bloco = 1; bloco <= texto.size() + 1; ++bloco) try {
                ASSERT_EQ(LerTudo(texto, bloco, 1 + bloco % 3), esperado) << testing::PrintToString(texto) << bloco;
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
