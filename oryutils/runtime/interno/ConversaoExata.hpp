#pragma once

#include "oryutils/runtime/interno/Binario.hpp"

#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

/// Between decimal and binary numbers with all their digits: always right, and slow far from 1.
namespace OryUtils {

/// Digits joined in one number as far as 64 bits certainly hold them.
inline constexpr int CDigitosEm64Bits = 19;

/// A decimal number: digits with the exponent of the last one.
struct TDecimalEscrito {
    std::u16string_view Digitos{};  // as written, with at most one separator; needed when there are more than 19
    std::int64_t Expoente = 0;
    std::int64_t Significativos = 0;  // digits from the first one that is not 0
    std::uint64_t Inicio = 0;         // the first 19 of these
};

/// The exponent of the last bit that an extended float may have.
inline constexpr int CMenorBit = std::numeric_limits<Extended>::min_exponent - std::numeric_limits<Extended>::digits;

/// AMantissa, and one more when AParaCima, times 2 to AExpoente; none when that is too large.
inline std::optional<Extended> JuntarBinario(std::uint64_t AMantissa, int AExpoente, bool AParaCima) noexcept {
    if (AParaCima && ++AMantissa == 0) {
        AMantissa = std::uint64_t{1} << 63;
        ++AExpoente;
    }
    const Extended valor = std::ldexp(static_cast<Extended>(AMantissa), AExpoente);
    return std::isinf(valor) ? std::nullopt : std::optional(valor);
}

/// The nearest extended float, halves to even; none when it is too large. ADecimal has a digit other than 0, and an
/// order that is not far outside of the extended floats.
std::optional<Extended> ConverterExato(const TDecimalEscrito& ADecimal) noexcept;

/// AValor times 10 to APotencia as an integer, halves up; the result fits 64 bits.
std::uint64_t EscalarExato(TBinario AValor, int APotencia) noexcept;

}  // namespace OryUtils
