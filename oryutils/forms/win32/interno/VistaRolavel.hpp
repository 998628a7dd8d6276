#pragma once

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

/// A child window without a border that shows a part of its own children and scrolls: by its bar, by the wheel, and to
/// the button that gets the focus. What its children tell goes on to the window that it is on.
HWND CriarVistaRolavel(HWND APai);
/// The children have AAltura pixels of height; the view shows the first of them.
void DefinirAlturaRolavel(HWND AVista, int AAltura, int ALinha);

}  // namespace OryUtils::Interno
