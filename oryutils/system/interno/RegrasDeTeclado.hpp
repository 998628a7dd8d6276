#pragma once

#include "oryutils/platform/Teclado.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"

#include <vector>

namespace OryUtils::Interno {

/// What happens at the keyboard when a key is pressed and released with modifiers held.
std::vector<Interno::TEventoDeTecla> MontarPressionamento(std::uint16_t ATecla, TShiftState AShift,
                                                          bool ATeclaEstendida);

}  // namespace OryUtils::Interno
