#pragma once

#include "oryutils/platform/Relogio.hpp"
#include "oryutils/runtime/DataHora.hpp"

namespace OryUtils::Interno {

/// An instant of the system's clock as a date and time; 0 when its numbers are none.
TDateTime DeInstanteLocal(const TInstanteLocal& AInstante) noexcept;

}  // namespace OryUtils::Interno
