#include "oryutils/forms/Toolkit.hpp"

#include "oryutils/forms/console/ToolkitConsole.hpp"

namespace OryUtils {
namespace {

TToolkit* GInstalado = nullptr;

}  // namespace

TToolkit& BuscarToolkit() {
    static TToolkitConsole console;
    return GInstalado ? *GInstalado : console;
}

void InstalarToolkit(TToolkit* AToolkit) { GInstalado = AToolkit; }

}  // namespace OryUtils
