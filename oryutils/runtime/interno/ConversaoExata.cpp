#include "oryutils/runtime/interno/ConversaoExata.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/interno/InteiroLongo.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

/// No extended float, nor the point half way between two of them, has more significant digits.
constexpr int CDigitosQueDecidem = 11600;

/// ANumero times 2 to AExpoente, rounded half to even; ASobrou tells that the number is a little larger.
std::optional<Extended> Arredondar(const TInteiroLongo& ANumero, int AExpoente, bool ASobrou) noexcept {
    const int descartados = std::max({ANumero.ContarBits() - 64, CMenorBit - AExpoente, 0});
    const std::uint64_t mantissa = ANumero.Buscar64Bits(descartados);
    const bool metade = ANumero.Bit(descartados - 1);
    const bool paraCima = metade && ((mantissa & 1) || ASobrou || ANumero.TemBitAbaixoDe(descartados - 1));
    return JuntarBinario(mantissa, AExpoente + descartados, paraCima);
}

/// The first digits of ATexto from the first that is not 0, as many as may decide; true when others follow.
bool LerDigitos(std::u16string_view ATexto, TInteiroLongo& ANumero) noexcept {
    std::int64_t lidos = 0;
    bool sobrou = false;
    std::uint32_t grupo = 0;  // nine digits at a time
    std::uint32_t fator = 1;
    for (const char16_t c : ATexto) {
        if (!EhDigito(c) || (lidos == 0 && c == u'0')) continue;
        if (++lidos > CDigitosQueDecidem) {
            sobrou |= c != u'0';
            continue;
        }
        grupo = grupo * 10 + static_cast<std::uint32_t>(c - u'0');
        fator *= 10;
        if (fator < 1'000'000'000) continue;
        ANumero.MultiplicarSomar(fator, grupo);
        grupo = 0;
        fator = 1;
    }
    ANumero.MultiplicarSomar(fator, grupo);
    return sobrou;
}

}  // namespace

std::optional<Extended> ConverterExato(const TDecimalEscrito& ADecimal) noexcept {
    const bool curto = ADecimal.Significativos <= CDigitosEm64Bits;
    TInteiroLongo numero(curto ? ADecimal.Inicio : 0);
    bool sobrou = !curto && LerDigitos(ADecimal.Digitos, numero);
    const auto expoente =
        static_cast<int>(ADecimal.Expoente + std::max<std::int64_t>(ADecimal.Significativos - CDigitosQueDecidem, 0));
    if (expoente >= 0) {
        numero.MultiplicarPorPotenciaDe5(expoente);
        return Arredondar(numero, expoente, sobrou);
    }
    // Enough bits in front for the quotient to keep more than the 64 of the result.
    const int bitsDoDivisor = -expoente * 7 / 3 + 1;
    const int deslocamento = std::max(bitsDoDivisor + 66 - numero.ContarBits(), 0);
    numero.DeslocarEsquerda(deslocamento);
    sobrou |= numero.DividirPorPotenciaDe5(-expoente);
    return Arredondar(numero, expoente - deslocamento, sobrou);
}

std::uint64_t EscalarExato(TBinario AValor, int APotencia) noexcept {
    TInteiroLongo numero(AValor.Mantissa);
    const int expoente = AValor.Expoente + APotencia;
    // Two bits at least stay below the units: the first one decides the rounding.
    const int deslocamento = std::max(expoente, 0) + 2;
    numero.DeslocarEsquerda(deslocamento);
    if (APotencia >= 0)
        numero.MultiplicarPorPotenciaDe5(APotencia);
    else
        numero.DividirPorPotenciaDe5(-APotencia);
    const int unidade = deslocamento - expoente;
    return numero.Buscar64Bits(unidade) + numero.Bit(unidade - 1);
}

}  // namespace OryUtils
