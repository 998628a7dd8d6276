#include "oryutils/forms/Toolkit.hpp"

#include "oryutils/forms/interno/ToolkitPadrao.hpp"

namespace OryUtils {
namespace {

TToolkit* GInstalado = nullptr;

}  // namespace

TToolkit& BuscarToolkit() { return GInstalado ? *GInstalado : BuscarToolkitPadrao(); }

void InstalarToolkit(TToolkit* AToolkit) { GInstalado = AToolkit; }

}  // namespace OryUtils
