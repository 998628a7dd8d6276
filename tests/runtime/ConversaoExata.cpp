#include "oryutils/runtime/interno/ConversaoExata.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/interno/InteiroLongo.hpp"

#include "comum/Acaso.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace OryUtils {
namespace {

const TFormatSettings CPonto{.DecimalSeparator = u'.'};

// Numbers without a half in the sixteenth digit, which the C library rounds to even.
TEST(ConversaoExata, EscritaComoADaBibliotecaC) {
    Testes::TAcaso gerador;
    for (int i = 0; i < 2000; ++i) {
        // Half of them of a size that is written without an exponent.
        const int potencia =
            i % 2 ? static_cast<int>(gerador() % 60) - 75 : static_cast<int>(gerador() % 32'900) - 16'510;
        const Extended valor = std::ldexp(static_cast<Extended>(gerador() | 1), potencia);
        if (std::isinf(valor)) continue;
        std::array<char, 64> texto{};
        std::snprintf(texto.data(), texto.size(), "%.14Le", valor);
        const Extended outro = std::strtold(texto.data(), nullptr);
        if (std::isinf(outro)) continue;
        ASSERT_EQ(TentarTextoParaExtended(ExtendedParaTexto(valor, CPonto), CPonto), outro) << texto.data();
    }
}

/// The first ADigitos digits of the middle between two neighbours, (2m + 1) / 2^APotencia, and the exponent of the
/// last.
std::pair<std::u16string, int> BuscarMeio(std::uint64_t AMantissa, int APotencia, std::size_t ADigitos) {
    constexpr std::uint32_t CGrupo = 1'000'000'000;
    TInteiroLongo numero(AMantissa);
    numero.MultiplicarSomar(2, 1);
    numero.MultiplicarPorPotenciaDe5(APotencia);
    std::u16string invertido;
    while (!numero.EhZero()) {
        std::uint32_t grupo = numero.Dividir(CGrupo);
        for (int i = 0; i < 9; ++i, grupo /= 10) invertido += static_cast<char16_t>(u'0' + grupo % 10);
    }
    std::u16string digitos(invertido.rbegin(), invertido.rend());
    digitos.erase(0, digitos.find_first_not_of(u'0'));
    const auto cortados = digitos.size() - std::min(digitos.size(), ADigitos);
    digitos.resize(digitos.size() - cortados);
    return {digitos, static_cast<int>(cortados) - APotencia};
}

// Cut off after some digits, the middle lies near to the text, on a known side of it.
TEST(ConversaoExata, PertoDosMeiosENeles) {
    Testes::TAcaso gerador;
    for (int i = 0; i < 100; ++i) {
        const std::uint64_t mantissa = gerador() | std::uint64_t{1} << 63;
        const int potencia = i < 20 ? 0 : static_cast<int>(gerador() % (i % 2 ? 60 : 8000));  // 0: an integer
        const auto escalar = [=](Extended AMantissa) { return std::ldexp(AMantissa, 1 - potencia); };
        const Extended abaixo = escalar(static_cast<Extended>(mantissa)), acima = abaixo + escalar(1);
        const auto ler = [](const std::u16string& ADigitos, int AExpoente) {
            return TentarTextoParaExtended(ADigitos + u"E" + InteiroParaTexto(AExpoente), CPonto);
        };
        const auto [meio, expoente] = BuscarMeio(mantissa, potencia, std::u16string::npos);
        EXPECT_EQ(ler(meio, expoente), mantissa % 2 ? acima : abaixo) << "to even";
        EXPECT_EQ(ler(u"0" + meio + u"." + std::u16string(12'000, u'0') + u"1", expoente), acima)
            << "a digit far behind";
        auto [cortado, expoenteDoCorte] = BuscarMeio(mantissa, potencia, 24 + gerador() % 32);
        if (expoenteDoCorte == expoente) continue;
        EXPECT_EQ(ler(cortado, expoenteDoCorte), abaixo) << ParaUtf8(cortado);
        const std::size_t quantos = cortado.size();
        const std::size_t lugar = cortado.find_last_not_of(u'9');
        ++cortado[lugar];  // one more in the last place
        cortado.resize(lugar + 1);
        EXPECT_EQ(ler(cortado, expoenteDoCorte + static_cast<int>(quantos - cortado.size())), acima);
    }
}

}  // namespace
}  // namespace OryUtils
