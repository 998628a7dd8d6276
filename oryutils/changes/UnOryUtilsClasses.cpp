#include "oryutils/changes/UnOryUtilsClasses.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsClasses> GOryUtilsClasses;

bool TOryUtilsClasses::ComparouMetodos(const TMetodo& A, const TMetodo& B) noexcept { return A == B; }

}  // namespace OryUtils
