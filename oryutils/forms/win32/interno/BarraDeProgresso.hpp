#pragma once

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

/// Shows a share on the system's progress bar AJanela, 0 to 100. Below 0, where nobody knows it, a block wanders along
/// the bar; it is drawn here, since the system's own is not in every version of its controls.
void MostrarPercentual(HWND AJanela, double APercentual);

}  // namespace OryUtils::Interno
