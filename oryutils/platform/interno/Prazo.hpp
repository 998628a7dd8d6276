#pragma once

#include "oryutils/platform/InicioDeProcessos.hpp"

#include <chrono>
#include <cstdint>

namespace OryUtils::Interno {

/// The limit of a wait that is made of several, in milliseconds from where it is made.
class TPrazo {
public:
    explicit TPrazo(std::uint32_t ALimite) noexcept : FLimite(ALimite) {}

    /// What is left: 0 when it is over, CEsperaSemLimite for ever.
    std::uint32_t Resta() const noexcept {
        if (FLimite == CEsperaSemLimite) return CEsperaSemLimite;
        const auto passou = std::chrono::duration_cast<std::chrono::milliseconds>(TRelogio::now() - FInicio).count();
        return passou >= FLimite ? 0 : FLimite - static_cast<std::uint32_t>(passou);
    }

private:
    using TRelogio = std::chrono::steady_clock;
    std::uint32_t FLimite;
    TRelogio::time_point FInicio = TRelogio::now();
};

}  // namespace OryUtils::Interno
