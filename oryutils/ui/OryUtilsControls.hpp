#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Controle.hpp"
#include "oryutils/runtime/Instancia.hpp"

namespace OryUtils {

/// Navigation between the controls of a form.
class ORY_API TOryUtilsControls {
public:
    /// Gives AControle the input focus when it can take it; an absent control is ignored.
    static void AtribuirFocoControle(TWinControl* AControle);
};

extern ORY_API TInstanciaGlobal<TOryUtilsControls> GOryUtilsControls;

}  // namespace OryUtils
