#pragma once

#include "oryutils/forms/Toolkit.hpp"

namespace OryUtils {

/// The toolkit of this system when the host installed none; written once for each system.
TToolkit& BuscarToolkitPadrao();

}  // namespace OryUtils
