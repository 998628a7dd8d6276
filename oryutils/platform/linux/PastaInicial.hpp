#pragma once

#include <string>

namespace OryUtils::Interno {

/// The user's home folder as the environment tells it, where a relative one counts as none, else as the table of
/// accounts does; empty when neither tells.
std::string BuscarPastaInicial();

}  // namespace OryUtils::Interno
