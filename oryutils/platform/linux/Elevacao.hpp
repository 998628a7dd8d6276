#pragma once

#include <string>
#include <vector>

namespace OryUtils::Interno {

/// The words to put before a program so that it runs as root after asking the user: pkexec, or else sudo with its
/// graphical question; none when the PATH has neither.
/// AManterPasta  the program starts in the folder in which the elevating program was started
std::vector<std::string> BuscarElevador(bool AManterPasta);

}  // namespace OryUtils::Interno
