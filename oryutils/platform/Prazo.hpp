#pragma once

#include "oryutils/platform/InicioDeProcessos.hpp"

#include <algorithm>
#include <chrono>

namespace OryUtils::Interno {

/// The limit of a wait that is made of several shorter ones; it counts from its construction.
class TPrazo {
public:
    explicit TPrazo(std::chrono::milliseconds ALimite) noexcept : FLimite(ALimite) {}

    /// The time left: 0 when the limit has passed, CEsperaSemLimite where there is none.
    std::chrono::milliseconds Resta() const noexcept {
        if (FLimite == CEsperaSemLimite) return FLimite;
        const auto passou = std::chrono::floor<std::chrono::milliseconds>(TRelogio::now() - FInicio);
        return std::max(FLimite - passou, std::chrono::milliseconds::zero());
    }

private:
    using TRelogio = std::chrono::steady_clock;
    std::chrono::milliseconds FLimite;
    TRelogio::time_point FInicio = TRelogio::now();
};

}  // namespace OryUtils::Interno
