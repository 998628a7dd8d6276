// The same digits whatever precision the calling program has set the processor to.
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/fields/Campos.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/runtime/Variante.hpp"

#include "comum/OutraAritmetica.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <random>
#include <stdexcept>

using namespace OryUtils;
using Testes::COutrosControles;
using Testes::TOutraAritmetica;

namespace {

std::string Hex(Extended AValor) {
    std::array<char, 64> texto{};
    return {texto.data(), static_cast<std::size_t>(std::snprintf(texto.data(), texto.size(), "%La ", AValor))};
}

/// What the fields, and the run time below them, make of a number and of a text.
std::string Descrever(Extended AValor, std::u16string_view ATexto) {
    std::u16string textos = ExtendedParaTexto(AValor) + u' ' + FormatarZeros(AValor, 3) + u' ';
    textos += FormatarNumero(u",0.00", AValor) + u' ' + FormatarNumero(u"0.##E+00", AValor) + u' ';
    textos += VarianteParaTexto(Variant(AValor) + Variant(TMoeda{12345})) + u' ';
    TNumericField inteiro(ftLargeint);
    inteiro.SetValor(AValor);
    textos += VarianteParaTexto(inteiro.GetValor()) + u' ';
    inteiro.SetValor(TMoeda{9'223'372'036'854'775'000});
    textos += VarianteParaTexto(inteiro.GetValor()) + u' ';
    return ParaUtf8(textos) + Hex(ArredondarPara15Digitos(AValor)) + Hex(TextoParaExtendedPadrao(ATexto, -1));
}

}  // namespace

TEST(PrecisaoPlena, OsMesmosDigitosEmQualquerPrograma) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    int diferentes = 0;  // with the precision that was set, or the test would show nothing
    for (int i = 0; i < 20'000; ++i) {
        const int expoente = static_cast<int>(gerador() % 100) - 120;  // the sum with money stays in its range
        const Extended valor = std::ldexp(static_cast<Extended>(gerador() | 1), expoente) * (i % 2 ? 1 : -1);
        std::u16string texto = InteiroParaTexto(static_cast<std::int64_t>(gerador() >> 1));
        texto.insert(1 + gerador() % texto.size(), 1, u',');
        if (i % 3 == 0) texto += u"E" + InteiroParaTexto(static_cast<std::int64_t>(gerador() % 9000) - 4500);
        const std::string esperado = Descrever(valor, texto);
        const std::uint16_t controle = COutrosControles[static_cast<std::size_t>(i) % std::size(COutrosControles)];
        std::string visto;
        volatile Extended terco = 1;
        {
            const TOutraAritmetica outra(controle);
            visto = Descrever(valor, texto);
            terco = terco / 3;
            ASSERT_EQ(TOutraAritmetica::BuscarControle(), controle);
        }
        ASSERT_EQ(visto, esperado) << ParaUtf8(texto) << ' ' << Hex(valor);
        diferentes += terco != 1 / 3.0L;
    }
    EXPECT_GT(diferentes, 0);
}

TEST(PrecisaoPlena, OQueNaoEhNumeroNaoPara) {
    for (const std::uint16_t controle : COutrosControles) {
        const TOutraAritmetica outra(controle);
        EXPECT_EQ(ExtendedParaTexto(std::numeric_limits<Extended>::quiet_NaN()), u"NAN");
        EXPECT_EQ(ExtendedParaTexto(-std::numeric_limits<Extended>::infinity()), u"-INF");
        EXPECT_FALSE(TentarTextoParaExtended(u"1E5000"));
        EXPECT_EQ(TextoParaExtended(u"1E-5000"), 0);
    }
}

TEST(PrecisaoPlena, UmaExcecaoDevolveOQueHavia) {
    const TOutraAritmetica outra(0x027F, 0x1D00);
    EXPECT_THROW(ComPrecisaoPlena([]() -> int { throw std::runtime_error("x"); }), std::runtime_error);
    EXPECT_EQ(TOutraAritmetica::BuscarControle(), 0x027F);
    EXPECT_FALSE(TemDoublePadrao());
}
