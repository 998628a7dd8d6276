#include "oryutils/runtime/interno/QuinzeDigitos.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace OryUtils;

namespace {

// Numbers of every kind that formulas meet: amounts, quotients, exact halves of the last digit, any bit pattern.
Extended Sortear(std::mt19937_64& AGerador) {
    const auto sorteado = AGerador();
    switch (AGerador() % 5) {
        case 0:
            return static_cast<Extended>(sorteado % 100'000'000 + 1) / 100;
        case 1:
            return static_cast<Extended>(sorteado) / static_cast<Extended>(AGerador() | 1);
        case 2:
            return static_cast<Extended>(sorteado >> 8) / static_cast<Extended>(1 << AGerador() % 20);
        case 3:
            return std::ldexp(static_cast<Extended>(sorteado), static_cast<int>(AGerador() % 200) - 160);
        default:
            return std::ldexp(static_cast<Extended>(sorteado | 1), static_cast<int>(AGerador() % 32'000) - 16'000);
    }
}

}  // namespace

TEST(QuinzeDigitos, OCaminhoCurtoDaOQueDaOLongo) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 100'000; ++i) {
        const Extended valor = std::ldexp(static_cast<Extended>(gerador() | 1), static_cast<int>(gerador() % 110) - 95);
        const auto curto = SepararQuinzeDigitos(valor);
        const auto longo = SepararQuinzeDigitosLongo(valor);
        ASSERT_EQ(curto.Digitos, longo.Digitos) << valor;
        ASSERT_EQ(curto.Ordem, longo.Ordem) << valor;
    }
}

TEST(QuinzeDigitos, ArredondarEhEscreverELerDeVolta) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 4'000; ++i) {
        const Extended valor = i % 2 ? -Sortear(gerador) : Sortear(gerador);
        const auto lido = TentarTextoParaExtended(ExtendedParaTexto(valor));
        ASSERT_TRUE(lido.has_value()) << valor;
        const Extended arredondado = ArredondarPara15Digitos(valor);
        ASSERT_EQ(arredondado, *lido) << valor;
        ASSERT_EQ(ArredondarPara15Digitos(arredondado), arredondado) << valor;
    }
    EXPECT_EQ(ArredondarPara15Digitos(999'999'999'999'999.5L), 1e15L) << "the carry makes one digit more";
}
