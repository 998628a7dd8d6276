#include "oryutils/runtime/interno/ConversaoExata.hpp"

#include "oryutils/runtime/Utf.hpp"
#include "oryutils/runtime/interno/InteiroLongo.hpp"
#include "oryutils/runtime/interno/QuinzeDigitos.hpp"

#include <gtest/gtest.h>

#include <random>

namespace OryUtils {
namespace {

const TFormatSettings CPonto{.DecimalSeparator = u'.'};

/// What all the digits give for a text of digits and an exponent.
std::optional<Extended> LerComTodosOsDigitos(std::u16string_view ADigitos, int AExpoente) {
    TDecimal decimal{.Digitos = ADigitos, .Expoente = AExpoente};
    for (const char16_t c : ADigitos)
        if (decimal.Significativos > 0 || c != u'0')
            if (++decimal.Significativos <= CDigitosEm64Bits)
                decimal.Inicio = decimal.Inicio * 10 + static_cast<unsigned>(c - u'0');
    return ConverterExato(decimal);
}

void CompararLeitura(const std::u16string& ADigitos, int AExpoente) {
    const std::u16string texto = ADigitos + u"E" + InteiroParaTexto(AExpoente);
    ASSERT_EQ(TentarTextoParaExtended(texto, CPonto), LerComTodosOsDigitos(ADigitos, AExpoente)) << ParaUtf8(texto);
}

// Subnormals included, and whatever order one estimate takes.
TEST(ConversaoExata, EscritaEmTodaAFaixa) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 3000; ++i) {
        const Extended valor =
            std::ldexp(static_cast<Extended>(gerador() | 1), static_cast<int>(gerador() % 32'800) - 16'480);
        if (valor == 0 || std::isinf(valor)) continue;
        const int quantos = static_cast<int>(gerador() % 18) + 1;
        std::uint64_t primeiro = 1;
        for (int k = 1; k < quantos; ++k) primeiro *= 10;
        const TDigitosDecimais decimal = SepararDigitos(valor, quantos);
        ASSERT_EQ(decimal.Digitos, EscalarExato(SepararBinario(valor), quantos - 1 - decimal.Ordem)) << valor;
        ASSERT_TRUE(decimal.Digitos >= primeiro && decimal.Digitos < primeiro * 10) << valor << " " << quantos;
    }
}

TEST(ConversaoExata, LeituraEmTodaAFaixa) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 3000; ++i) {
        std::u16string digitos;
        for (auto n = gerador() % 60 + 1; n > 0; --n) digitos += static_cast<char16_t>(u'0' + gerador() % 10);
        digitos += u'1';
        CompararLeitura(digitos, static_cast<int>(gerador() % 9850) - 4990 + (i % 2 ? 0 : 20));
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

// Cut off after some digits, the middle lies so near to the text that no estimate tells on which side the text is.
TEST(ConversaoExata, PertoDosMeios) {
    const auto semente = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << semente);
    std::mt19937_64 gerador(semente);
    for (int i = 0; i < 60; ++i) {
        const std::uint64_t mantissa = gerador() | std::uint64_t{1} << 63;
        const int potencia = static_cast<int>(gerador() % 8000) + 70;
        auto [digitos, expoente] = BuscarMeio(mantissa, potencia, 36 + gerador() % 20);
        const std::size_t quantos = digitos.size();
        CompararLeitura(digitos, expoente);
        const Extended abaixo = std::ldexp(static_cast<Extended>(mantissa), 1 - potencia);
        EXPECT_EQ(TentarTextoParaExtended(digitos + u"E" + InteiroParaTexto(expoente), CPonto), abaixo);
        // One more in the last place.
        const std::size_t lugar = digitos.find_last_not_of(u'9');
        ++digitos[lugar];
        digitos.resize(lugar + 1);
        CompararLeitura(digitos, expoente + static_cast<int>(quantos - digitos.size()));
    }
}

}  // namespace
}  // namespace OryUtils
