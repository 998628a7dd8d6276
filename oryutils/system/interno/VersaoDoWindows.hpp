#pragma once

#include "oryutils/platform/Maquina.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"

namespace OryUtils::Interno {

/// The generation of a Windows by what GetVersionEx tells of it.
TVersaoWindows ClassificarVersao(const Interno::TVersaoDoSistema& AVersao);

}  // namespace OryUtils::Interno
