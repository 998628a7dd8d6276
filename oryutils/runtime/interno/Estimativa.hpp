#pragma once

#include <cstdint>

namespace OryUtils {

__extension__ using TInteiro128 = unsigned __int128;

/// A positive number known to 128 bits: at least Mantissa times 2 to Expoente, and less than Erro units of Mantissa
/// above that; exactly that when Erro is 0.
struct TEstimativa {
    TInteiro128 Mantissa = 0;  // the highest bit is set
    int Expoente = 0;
    unsigned Erro = 0;

    /// The mantissa without its lowest ABits (64 to 128).
    std::uint64_t DescartarBits(int ABits) const noexcept {
        return ABits == 128 ? 0 : static_cast<std::uint64_t>(Mantissa >> ABits);
    }
};

/// AValor, which is not 0, with its highest bit at the top.
TEstimativa Estimar(TInteiro128 AValor, unsigned AErro, int AExpoente) noexcept;

/// The powers that the conversions of extended floats need stay within this, on both sides.
inline constexpr int CMaiorPotencia = 5200;
/// AValor times 10 to APotencia.
TEstimativa MultiplicarPorPotenciaDe10(const TEstimativa& AValor, int APotencia) noexcept;

/// Where a number stands between the two integers beside it.
enum TLadoDaMetade { lmAbaixo, lmMetade, lmAcima, lmIncerto };
/// Of AValor's mantissa without its lowest ABits (64 to 128); lmIncerto when the error reaches over the half.
TLadoDaMetade BuscarLadoDaMetade(const TEstimativa& AValor, int ABits) noexcept;

}  // namespace OryUtils
