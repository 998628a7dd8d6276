#pragma once

#include "oryutils/runtime/Variante.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"

namespace OryUtils {

/// An amount of money as a number, the nearest one.
inline Extended BuscarValorDaMoeda(TMoeda AMoeda) {
    constexpr Extended CDezMil = 10'000;
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return BuscarValorDaMoeda(AMoeda); });
    return static_cast<Extended>(AMoeda.DezMilesimos) / CDezMil;
}

}  // namespace OryUtils
