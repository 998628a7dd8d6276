#include "oryutils/system/OryUtilsSystem.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsSistema> GOryUtilsSistema;

}  // namespace OryUtils
