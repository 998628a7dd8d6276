#pragma once

#include "oryutils/platform/Maquina.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"

namespace OryUtils::Sistema {

/// The generation of a Windows by what GetVersionEx tells of it.
TVersaoWindows ClassificarVersao(const Plataforma::TVersaoDoSistema& AVersao);

}  // namespace OryUtils::Sistema
