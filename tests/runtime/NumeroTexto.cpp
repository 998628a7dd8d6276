#include "oryutils/runtime/NumeroTexto.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "comum/Acaso.hpp"
#include "comum/MensagemDe.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace OryUtils {
namespace {

const TFormatSettings CPonto{};
TFormatSettings Virgula() {
    TFormatSettings formatos;
    formatos.DecimalSeparator = u',';
    return formatos;
}

TEST(NumeroTexto, InteiroDe64Bits) {
    const std::tuple<std::u16string_view, std::optional<std::int64_t>, const char*> casos[] = {
        {u"-0", 0, "signed zero"},
        {u" \t12", 12, "blanks before"},
        {u"+12", 12, "plus sign"},
        {u"12 ", {}, "a blank after"},
        {u"", {}, "empty"},
        {u"  ", {}, "blanks alone"},
        {u"-", {}, "a sign alone"},
        {u"--1", {}, "two signs"},
        {u"1.0", {}, "a separator"},
        {u"$FF", {}, "hexadecimal is not decimal"},
        {u"１２", {}, "full-width digits are not digits"},
        {u"9223372036854775807", std::numeric_limits<std::int64_t>::max(), "largest"},
        {u"9223372036854775808", {}, "one more than the largest"},
        {u"-9223372036854775808", std::numeric_limits<std::int64_t>::min(), "smallest"},
        {u"-9223372036854775809", {}, "one less than the smallest"},
        {u"00000000000000000000000000000007", 7, "zeros before do not count as size"},
    };
    for (const auto& [texto, esperado, porque] : casos) EXPECT_EQ(TentarTextoParaInt64(texto), esperado) << porque;
    EXPECT_EQ(TentarTextoParaInt64(std::u16string(1 << 20, u'9')), std::nullopt);

    EXPECT_EQ(TextoParaIntPadrao(u"2147483647", 5), 2147483647);
    EXPECT_EQ(TextoParaIntPadrao(u"2147483648", 5), 5) << "fits 64 bits only";
    EXPECT_EQ(TextoParaIntPadrao(u"-2147483648", 5), -2147483647 - 1);
}

TEST(NumeroTexto, FalhasDizemOTexto) {
    using Testes::MensagemDe;
    EXPECT_EQ(MensagemDe([] { TextoParaInt64(u"12a"); }), "'12a' não é um valor inteiro válido");
    EXPECT_EQ(MensagemDe([] { TextoParaInt(u"2147483648"); }), "'2147483648' não é um valor inteiro válido");
    EXPECT_EQ(MensagemDe([] { TextoParaExtended(u"", CPonto); }), "'' não é um valor de ponto flutuante válido");
}

TEST(NumeroTexto, LeituraDePontoFlutuante) {
    const std::tuple<std::u16string_view, std::optional<Extended>, const char*> casos[] = {
        {u"1,5", 1.5L, "the separator of the formats"},
        {u"1.5", {}, "another separator"},
        {u" -1,5 ", -1.5L, "blanks at both ends"},
        {u"1 5", {}, "a blank inside"},
        {u",5", 0.5L, "no digit before"},
        {u"5,", 5.0L, "no digit after"},
        {u",", {}, "no digit at all"},
        {u"1,2,3", {}, "two separators"},
        {u"1e3", 1000.0L, "exponent"},
        {u"1E+3", 1000.0L, "exponent with sign"},
        {u"25E-1", 2.5L, "negative exponent"},
        {u"1E", {}, "exponent without digits"},
        {u"E5", {}, "exponent alone"},
        {u"1E5,0", {}, "exponents are integers"},
        {u"1E99999", {}, "too large"},
        {u"1E-99999", 0.0L, "too small"},
        {u"0E99999999999999999999", 0.0L, "zero whatever the exponent"},
        {u"INF", {}, "words are not numbers"},
        {u"0x10", {}, "hexadecimal"},
        {u"18446744073709551615", 18446744073709551615.0L, "largest 64-bit mantissa"},
    };
    for (const auto& [texto, esperado, porque] : casos)
        EXPECT_EQ(TentarTextoParaExtended(texto, Virgula()), esperado) << porque;

    std::u16string zeros(1 << 20, u'0');
    EXPECT_EQ(TentarTextoParaExtended(zeros + u"7", CPonto), 7.0L) << "a megabyte of zeros before";
    EXPECT_EQ(TentarTextoParaExtended(u"7" + zeros, CPonto), std::nullopt) << "a megabyte of zeros after";
    EXPECT_EQ(TentarTextoParaExtended(u"7" + zeros + u"E-1048576", CPonto), 7.0L) << "taken back by the exponent";
    EXPECT_EQ(TentarTextoParaExtended(u"0." + zeros + u"7E1048577", CPonto), 7.0L);
}

// Any decimal text, compared with the reader of the C library.
TEST(NumeroTexto, LeituraArredondaCerto) {
    Testes::TAcaso gerador;
    for (int i = 0; i < 5000; ++i) {
        std::string texto;
        for (auto n = gerador() % (i % 100 == 0 ? 3000 : 40) + 1; n > 0; --n)
            texto += static_cast<char>('0' + gerador() % 10);
        texto.insert(gerador() % texto.size(), ".");
        // Half of them close to 1, the others from below the smallest to above the largest.
        texto +=
            "E" + std::to_string(static_cast<int>(gerador() % 10'000) % (i % 2 ? 40 : 10'000) - (i % 2 ? 20 : 5000));
        // What is too large is refused here and infinite there.
        const Extended outro = std::strtold(texto.c_str(), nullptr);
        EXPECT_EQ(TentarTextoParaExtended(DeUtf8(texto), CPonto),
                  std::isinf(outro) ? std::nullopt : std::optional(outro))
            << texto;
    }
}

TEST(NumeroTexto, EscritaGeral) {
    const std::tuple<Extended, std::u16string_view, const char*> casos[] = {
        {0.0L, u"0", "zero"},
        {-0.0L, u"0", "zero has no sign"},
        {0.1L, u"0,1", "shortest"},
        {0.1, u"0,1", "a double differs in the 17th digit only"},
        {1234.5L, u"1234,5", "plain"},
        {-1234.5L, u"-1234,5", "sign"},
        {100, u"100", "zeros before the separator stay"},
        {0.0001L, u"0,0001", "smallest plain form"},
        {0.00001L, u"1E-5", "below it"},
        {-0.0000123L, u"-1,23E-5", "scientific with a fraction"},
        {999999999999999.0L, u"999999999999999", "fifteen digits"},
        {1E15L, u"1E15", "from here on scientific"},
        {999999999999999.5L, u"1E15", "rounds up to sixteen digits"},
        {100000000000000.5L, u"100000000000001", "a half goes away from zero"},
        {0.99999999999999999L, u"1", "rounds up to another order"},
        {std::numeric_limits<Extended>::max(), u"1,18973149535723E4932", "largest"},
        {std::numeric_limits<Extended>::denorm_min(), u"3,64519953188247E-4951", "smallest"},
        {std::numeric_limits<Extended>::infinity(), u"INF", "infinity"},
        {-std::numeric_limits<Extended>::infinity(), u"-INF", "infinity"},
        {std::numeric_limits<Extended>::quiet_NaN(), u"NAN", "not a number"},
    };
    for (const auto& [valor, esperado, porque] : casos)
        EXPECT_EQ(ExtendedParaTexto(valor, Virgula()), esperado) << porque;
}

TEST(NumeroTexto, Zeros) {
    const std::tuple<Extended, int, std::u16string_view, const char*> casos[] = {
        {0, 3, u"000", "zero"},
        {1234, 3, u"1234", "longer than asked"},
        {-7, 3, u"-007", "the sign before the zeros"},
        {0.5L, 1, u"1", "a half goes away from zero"},
        {-2.5L, 1, u"-3", "a half goes away from zero"},
        {0.49999999999999999997L, 1, u"0", "below a half by the last bit"},
        {-0.4L, 2, u"00", "no sign before zeros alone"},
        {9999.5L, 4, u"10000", "one digit more"},
        {99999999999999.0L, 14, u"99999999999999", "fourteen digits exact"},
        {9223372036854775807.5L, 1, u"9223372036854775808", "around the 64-bit edge"},
        {18446744073709551615.0L, 21, u"018446744073709551615", "the largest mantissa"},
        {1e30L, 1, u"1000000000000000000024696061952", "the value itself, not its short text"},
        {std::numeric_limits<Extended>::quiet_NaN(), 3, u"000", "not finite"},
    };
    for (const auto& [valor, digitos, esperado, porque] : casos)
        EXPECT_EQ(FormatarZeros(valor, digitos), esperado) << porque;

    const std::u16string maior = FormatarZeros(std::numeric_limits<Extended>::lowest(), 1);
    EXPECT_EQ(maior.size(), 4934U);
    EXPECT_EQ(TextoParaExtended(maior, CPonto), std::numeric_limits<Extended>::lowest());
    std::array<char16_t, 4> curto{};
    EXPECT_EQ(EscreverZeros(123456, 9, curto), u"3456") << "lost on the left";
}

}  // namespace
}  // namespace OryUtils
