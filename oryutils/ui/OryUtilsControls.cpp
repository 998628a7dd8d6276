#include "oryutils/ui/OryUtilsControls.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsControls> GOryUtilsControls;

void TOryUtilsControls::AtribuirFocoControle(TWinControl* AControle) {
    if (AControle && AControle->PodeReceberFoco()) AControle->ReceberFoco();
}

}  // namespace OryUtils
