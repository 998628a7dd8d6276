#pragma once

#include <string>

namespace OryUtils::Interno {

/// The user's home folder as the environment tells it, where a relative one counts as none, else as the table of
/// accounts does; empty when neither tells.
std::string BuscarPastaInicial();

/// The folder of the user's settings: XDG_CONFIG_HOME where it is a full path, else ".config" in the home folder; empty
/// without a home folder.
std::string BuscarPastaDeConfiguracoes();

}  // namespace OryUtils::Interno
