#pragma once

#include "oryutils/runtime/NumeroTexto.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <limits>

/// An Extended by its bits, without arithmetic: exact whatever the precision that the processor computes with.
namespace OryUtils {

/// A number as a 64-bit mantissa, whose highest bit is set, times 2 to Expoente.
struct TBinario {
    std::uint64_t Mantissa = 0;
    int Expoente = 0;
};
/// The exponent of AValor, positive and finite, so that AValor is from 1 to below 2 times 2 to it; lower for the
/// smallest numbers.
inline int BuscarExpoente2(Extended AValor) noexcept {
    std::uint16_t expoente = 0;  // biased, behind the 64 bits of the mantissa
    std::memcpy(&expoente, reinterpret_cast<const char*>(&AValor) + 8, sizeof expoente);
    return expoente - 16383;
}

/// AValor is positive and finite.
inline TBinario SepararBinario(Extended AValor) noexcept {
    std::uint64_t mantissa = 0;
    std::memcpy(&mantissa, &AValor, sizeof mantissa);
    // Only the smallest numbers have zeros in front; their exponent stays at the lowest one.
    const int zeros = std::countl_zero(mantissa);
    const int expoente = std::max(BuscarExpoente2(AValor), std::numeric_limits<Extended>::min_exponent - 1);
    return {mantissa << zeros, expoente - 63 - zeros};
}

}  // namespace OryUtils
