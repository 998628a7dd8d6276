#pragma once

#include <cstdint>
#include <string>

namespace OryUtils::Plataforma {

/// The characters that a virtual key (numbered as on Windows) produces with the current keyboard state: none, one or
/// more. Windows translates by ToUnicodeEx with the calling thread's layout. Linux asks the X server named by DISPLAY
/// for the modifiers and the layout, through a library loaded at run time; without a display there is no keyboard
/// and the answer is empty.
std::u16string TraduzirTeclaVirtual(std::uint16_t ATecla);

}  // namespace OryUtils::Plataforma
