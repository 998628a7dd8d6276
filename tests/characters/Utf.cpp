#include "oryutils/characters/Utf.hpp"

#include "comum/Acaso.hpp"

#include <gtest/gtest.h>

namespace {

using OryUtils::DeUtf8;
using OryUtils::DeWindows1252;
using OryUtils::EhUtf8Valido;
using OryUtils::ParaUtf8;

TEST(Utf, CadaCodigoVaiEVolta) {
    for (char32_t codigo = 0; codigo <= 0x10FFFF; ++codigo) {
        if (codigo >= 0xD800 && codigo <= 0xDFFF) continue;
        std::u16string texto;
        if (codigo < 0x10000) {
            texto += static_cast<char16_t>(codigo);
        } else {
            texto += static_cast<char16_t>(0xD800 + ((codigo - 0x10000) >> 10));
            texto += static_cast<char16_t>(0xDC00 + ((codigo - 0x10000) & 0x3FF));
        }
        const std::string bytes = ParaUtf8(texto);
        ASSERT_TRUE(EhUtf8Valido(bytes)) << std::uint32_t{codigo};
        ASSERT_EQ(DeUtf8(bytes), texto) << std::uint32_t{codigo};
    }
}

TEST(Utf, MalformadoViraSubstituto) {
    const std::tuple<std::string_view, std::u16string_view, const char*> casos[] = {
        {"a\x80z", u"a\uFFFDz", "continuation without a lead"},
        {"\xC0\xAF", u"\uFFFD\uFFFD", "overlong slash"},
        {"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD", "overlong in three bytes"},
        {"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD", "a surrogate is not a character"},
        {"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD", "above U+10FFFF"},
        {"\xE2\x82", u"\uFFFD", "cut at the end: one for the whole part"},
        {"\xE2\x82x", u"\uFFFDx", "cut by a letter"},
        {"\xF0\x9F\x98", u"\uFFFD", "four bytes cut at three"},
        {"\xFF", u"\uFFFD", "never a byte of UTF-8"},
    };
    for (const auto& [bytes, texto, porque] : casos) {
        EXPECT_EQ(DeUtf8(bytes), texto) << porque;
        EXPECT_FALSE(EhUtf8Valido(bytes)) << porque;
    }
    const char16_t soltos[] = {u'a', 0xD83D, u'b', 0xDE00, 0xD800};
    EXPECT_EQ(ParaUtf8({soltos, std::size(soltos)}),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf, BytesAoAcasoDaoSempreTextoValido) {
    Testes::TAcaso sorteio;
    for (int rodada = 0; rodada < 2000; ++rodada) {
        std::string bytes(sorteio() % 24, '\0');
        for (char& c : bytes) c = static_cast<char>(sorteio());
        const std::string volta = ParaUtf8(DeUtf8(bytes));
        ASSERT_TRUE(EhUtf8Valido(volta));
        if (EhUtf8Valido(bytes)) {
            ASSERT_EQ(volta, bytes);
        }
    }
}

TEST(Utf, Windows1252) { EXPECT_EQ(DeWindows1252("S\xE3o Jo\xE3o \x80 \x93\x94 \x81"), u"São João € “” \u0081"); }

}  // namespace
