#include "oryutils/runtime/NumeroTexto.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Utf.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

namespace OryUtils {
namespace {

const TFormatSettings CPonto{};
TFormatSettings Virgula() {
    TFormatSettings formatos;
    formatos.DecimalSeparator = u',';
    return formatos;
}

TEST(NumeroTexto, InteiroDe64Bits) {
    struct TCaso {
        std::u16string_view Texto;
        std::optional<std::int64_t> Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"-0", 0, "signed zero"},
        {u" \t12", 12, "blanks before"},
        {u"+12", 12, "plus sign"},
        {u"12 ", {}, "a blank after"},
        {u"", {}, "empty"},
        {u"-", {}, "a sign alone"},
        {u"- 1", {}, "blank after the sign"},
        {u"１２", {}, "full-width digits are not digits"},
        {u"9223372036854775807", std::numeric_limits<std::int64_t>::max(), "largest"},
        {u"9223372036854775808", {}, "one more than the largest"},
        {u"-9223372036854775808", std::numeric_limits<std::int64_t>::min(), "smallest"},
        {u"-9223372036854775809", {}, "one less than the smallest"},
        {u"00000000000000000000000000000007", 7, "zeros before do not count as size"},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(TentarTextoParaInt64(caso.Texto), caso.Esperado) << caso.Porque;
    EXPECT_EQ(TentarTextoParaInt64(std::u16string(1 << 20, u'9')), std::nullopt);

    EXPECT_EQ(TextoParaIntPadrao(u"2147483647", 5), 2147483647);
    EXPECT_EQ(TextoParaIntPadrao(u"2147483648", 5), 5) << "fits 64 bits only";
    EXPECT_EQ(TextoParaIntPadrao(u"-2147483648", 5), -2147483647 - 1);
}

TEST(NumeroTexto, FalhasDizemOTexto) {
    const auto mensagem = [](auto AChamada) -> std::string {
        try {
            AChamada();
        } catch (const EConvertError& erro) {
            return erro.what();
        }
        return "no exception";
    };
    EXPECT_EQ(mensagem([] { TextoParaInt64(u"12a"); }), "'12a' não é um valor inteiro válido");
    EXPECT_EQ(mensagem([] { TextoParaInt(u"2147483648"); }), "'2147483648' não é um valor inteiro válido");
    EXPECT_EQ(mensagem([] { TextoParaExtended(u"", CPonto); }), "'' não é um valor de ponto flutuante válido");
}

TEST(NumeroTexto, LeituraDePontoFlutuante) {
    struct TCaso {
        std::u16string_view Texto;
        std::optional<Extended> Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"1,5", 1.5L, "the separator of the formats"},
        {u"1.5", {}, "another separator"},
        {u" -1,5 ", -1.5L, "blanks at both ends"},
        {u",5", 0.5L, "no digit before"},
        {u"5,", 5.0L, "no digit after"},
        {u",", {}, "no digit at all"},
        {u"1,2,3", {}, "two separators"},
        {u"1e3", 1000.0L, "exponent"},
        {u"1E+3", 1000.0L, "exponent with sign"},
        {u"25E-1", 2.5L, "negative exponent"},
        {u"1E", {}, "exponent without digits"},
        {u"1E5,0", {}, "exponents are integers"},
        {u"1E99999", {}, "too large"},
        {u"1E-99999", 0.0L, "too small"},
        {u"0E99999999999999999999", 0.0L, "zero whatever the exponent"},
    };
    for (const TCaso& caso : casos)
        EXPECT_EQ(TentarTextoParaExtended(caso.Texto, Virgula()), caso.Esperado) << caso.Porque;

    std::u16string zeros(1 << 20, u'0');
    EXPECT_EQ(TentarTextoParaExtended(zeros + u"7", CPonto), 7.0L) << "a megabyte of zeros before";
    EXPECT_EQ(TentarTextoParaExtended(u"7" + zeros, CPonto), std::nullopt) << "a megabyte of zeros after";
    EXPECT_EQ(TentarTextoParaExtended(u"7" + zeros + u"E-1048576", CPonto), 7.0L) << "taken back by the exponent";
    EXPECT_EQ(TentarTextoParaExtended(u"0." + zeros + u"7E1048577", CPonto), 7.0L);
}

// Any decimal text, subnormals included, compared with the reader of the C library.
TEST(NumeroTexto, LeituraArredondaCerto) {
    const auto semente = std::random_device{}();
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 5000; ++i) {
        std::string texto;
        const int expoente_maximo = i % 2 ? 40 : 9900;
        for (auto n = gerador() % (i % 100 == 0 ? 3000 : 40) + 1; n > 0; --n)
            texto += static_cast<char>('0' + gerador() % 10);
        texto.insert(gerador() % texto.size(), ".");
        texto += "E" + std::to_string(static_cast<int>(gerador() % 9900) % expoente_maximo - expoente_maximo / 2);
        // What is too large is refused here and infinite there.
        const Extended outro = std::strtold(texto.c_str(), nullptr);
        EXPECT_EQ(TentarTextoParaExtended(DeUtf8(texto), CPonto),
                  std::isinf(outro) ? std::nullopt : std::optional(outro))
            << texto << " seed " << semente;
    }
}

TEST(NumeroTexto, EscritaGeral) {
    struct TCaso {
        Extended Valor;
        std::u16string_view Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {0.0L, u"0", "zero"},
        {-0.0L, u"0", "zero has no sign"},
        {0.1L, u"0,1", "shortest"},
        {1234.5L, u"1234,5", "plain"},
        {100, u"100", "zeros before the separator stay"},
        {0.0001L, u"0,0001", "smallest plain form"},
        {0.00001L, u"1E-5", "below it"},
        {-0.0000123L, u"-1,23E-5", "scientific with a fraction"},
        {999999999999999.0L, u"999999999999999", "fifteen digits"},
        {1E15L, u"1E15", "from here on scientific"},
        {999999999999999.5L, u"1E15", "rounds up to sixteen digits"},
        {100000000000000.5L, u"100000000000001", "a half goes away from zero"},
        {2.0L / 3, u"0,666666666666667", "fifteen digits of a fraction"},
        {std::numeric_limits<Extended>::max(), u"1,18973149535723E4932", "largest"},
        {std::numeric_limits<Extended>::denorm_min(), u"3,64519953188247E-4951", "smallest"},
        {std::numeric_limits<Extended>::infinity(), u"INF", "infinity"},
        {-std::numeric_limits<Extended>::infinity(), u"-INF", "infinity"},
        {std::numeric_limits<Extended>::quiet_NaN(), u"NAN", "not a number"},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(ExtendedParaTexto(caso.Valor, Virgula()), caso.Esperado) << caso.Porque;
}

TEST(NumeroTexto, Zeros) {
    struct TCaso {
        Extended Valor;
        int Digitos;
        std::u16string_view Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {0, 3, u"000", "zero"},
        {7, 3, u"007", "filled"},
        {1234, 3, u"1234", "longer than asked"},
        {-7, 3, u"-007", "the sign before the zeros"},
        {0.5L, 1, u"1", "a half goes away from zero"},
        {-2.5L, 1, u"-3", "a half goes away from zero"},
        {0.49999999999999999997L, 1, u"0", "below a half by the last bit"},
        {-0.4L, 2, u"00", "no sign before zeros alone"},
        {9999.5L, 4, u"10000", "one digit more"},
        {9223372036854775807.5L, 1, u"9223372036854775808", "around the 64-bit edge"},
        {1e30L, 1, u"1000000000000000000024696061952", "the value itself, not its short text"},
        {std::numeric_limits<Extended>::quiet_NaN(), 3, u"000", "not finite"},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(FormatarZeros(caso.Valor, caso.Digitos), caso.Esperado) << caso.Porque;

    const std::u16string maior = FormatarZeros(std::numeric_limits<Extended>::lowest(), 1);
    EXPECT_EQ(maior.size(), 4934U);
    EXPECT_EQ(TextoParaExtended(maior, CPonto), std::numeric_limits<Extended>::lowest());
    std::array<char16_t, 4> curto{};
    EXPECT_EQ(EscreverZeros(123456, 9, curto), u"3456") << "lost on the left";
}

}  // namespace
}  // namespace OryUtils
