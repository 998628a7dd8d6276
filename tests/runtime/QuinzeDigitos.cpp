#include "oryutils/runtime/interno/QuinzeDigitos.hpp"

#include "oryutils/runtime/NumeroTexto.hpp"

#include "comum/Acaso.hpp"

using namespace OryUtils;

namespace {

// Numbers of every kind that formulas meet: amounts, quotients, exact halves of the last digit, any bit pattern.
Extended Sortear(Testes::TAcaso& AAcaso) {
    const auto sorteado = AAcaso();
    const Extended numeros[] = {
        static_cast<Extended>(sorteado % 100'000'000 + 1) / 100,
        static_cast<Extended>(sorteado | 1) / static_cast<Extended>(AAcaso() | 1),
        static_cast<Extended>(sorteado >> 8 | 1) / static_cast<Extended>(1 << AAcaso() % 20),
        std::ldexp(static_cast<Extended>(sorteado | 1), static_cast<int>(AAcaso() % 200) - 160),
        std::ldexp(static_cast<Extended>(sorteado | 1), static_cast<int>(AAcaso() % 32'000) - 16'000),
    };
    return numeros[AAcaso() % std::size(numeros)];
}

TEST(QuinzeDigitos, OCaminhoCurtoOLongoEOTextoConcordam) {
    Testes::TAcaso acaso;
    for (int i = 0; i < 100'000; ++i) {
        const Extended valor = Sortear(acaso);
        const auto curto = SepararQuinzeDigitos(valor), longo = SepararQuinzeDigitosLongo(valor);
        ASSERT_EQ(std::pair(curto.Digitos, curto.Ordem), std::pair(longo.Digitos, longo.Ordem)) << valor;
        if (i % 25) continue;
        const Extended arredondado = ArredondarPara15Digitos(-valor);
        ASSERT_EQ(arredondado, TentarTextoParaExtended(ExtendedParaTexto(-valor))) << valor;
        ASSERT_EQ(ArredondarPara15Digitos(arredondado), arredondado) << valor;
    }
    EXPECT_EQ(ArredondarPara15Digitos(999'999'999'999'999.5L), 1e15L) << "the carry makes one digit more";
}

}  // namespace
