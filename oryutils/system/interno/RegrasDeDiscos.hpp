#pragma once

#include "oryutils/system/UnOryUtilsSystemIOP.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

namespace OryUtils::Interno {

/// Success when ADisco has at least ANecessario free, in its own unit.
OryTypes::TResultStatus ConferirEspacoLivre(const TOryUtilsSystemInfoDiscoRigidoIOP& ADisco, std::int64_t ANecessario);

}  // namespace OryUtils::Interno
