#pragma once

#include <string>

namespace OryUtils::Interno {

/// Whether a window could be shown now: the X server that DISPLAY names accepts a connection, or the Wayland socket
/// does. A variable left over from a session that has ended is no display.
bool PossuiExibicao();

/// Folder of the program or library that holds this code, without a final "/"; empty when the system does not tell.
/// Never relative to the current folder.
std::string BuscarPastaDoModulo();

}  // namespace OryUtils::Interno
