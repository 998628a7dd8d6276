#pragma once

#include "oryutils/runtime/interno/Binario.hpp"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace OryUtils {

/// 10 to this power and all below are exact in an extended float.
inline constexpr int CPotenciaExata = 27;
inline constexpr auto CPotenciasDe10 = [] {
    std::array<Extended, CPotenciaExata + 1> potencias{1};
    for (std::size_t i = 1; i < potencias.size(); ++i) potencias[i] = potencias[i - 1] * 10;
    return potencias;
}();
/// The power for -CPotenciaExata <= APotencia <= CPotenciaExata as a factor or a divisor: both round once.
constexpr Extended MultiplicarPorPotenciaDe10(Extended AValor, int APotencia) noexcept {
    return APotencia < 0 ? AValor / CPotenciasDe10[static_cast<std::size_t>(-APotencia)]
                         : AValor * CPotenciasDe10[static_cast<std::size_t>(APotencia)];
}

/// Digitos, a whole number, times 10 to (Ordem + 1 - the number of its digits).
struct TDigitosDecimais {
    std::uint64_t Digitos = 0;
    int Ordem = 0;
};

/// Rounds AValor, positive and finite, to AQuantidade (1 to 18) significant digits: the exact value, halves up.
TDigitosDecimais SepararDigitos(Extended AValor, int AQuantidade) noexcept;

/// A positive number as its text shows it: Digitos, a whole number of 15 digits, times 10 to (Ordem - 14).
struct TQuinzeDigitos {
    Extended Digitos = 0;
    int Ordem = 0;
};

/// Rounds AValor, positive and finite, to 15 significant digits: the exact value, halves up.
TQuinzeDigitos SepararQuinzeDigitosLongo(Extended AValor) noexcept;

inline constexpr Extended CPrimeiroDe15Digitos = 1e14L;
inline constexpr Extended CPrimeiroDe16Digitos = 1e15L;

/// AValor (from 0 to below 2^63) rounded to a whole number; the addition leaves no room for a fraction.
inline Extended ArredondarAoInteiro(Extended AValor) noexcept { return (AValor + 0x1p63L) - 0x1p63L; }

inline TQuinzeDigitos SepararQuinzeDigitos(Extended AValor) noexcept {
    const int expoente2 = BuscarExpoente2(AValor);
    if (expoente2 < -40 || expoente2 > 80) return SepararQuinzeDigitosLongo(AValor);

    // log10(2) is 1233/4096; the order is this one or the next.
    int ordem = (expoente2 * 1233) >> 12;
    Extended escalado = MultiplicarPorPotenciaDe10(AValor, 14 - ordem);
    if (escalado >= CPrimeiroDe16Digitos) escalado = MultiplicarPorPotenciaDe10(AValor, 14 - ++ordem);
    // Scaling rounds once, and rounding keeps the order of numbers: only a result exactly on a half may hide on which
    // side of it the exact value lies.
    const Extended digitos = ArredondarAoInteiro(escalado);
    const Extended sobra = escalado - digitos;
    if (sobra == 0.5L || sobra == -0.5L || digitos < CPrimeiroDe15Digitos) return SepararQuinzeDigitosLongo(AValor);
    if (digitos == CPrimeiroDe16Digitos) return {CPrimeiroDe15Digitos, ordem + 1};
    return {digitos, ordem};
}

}  // namespace OryUtils
