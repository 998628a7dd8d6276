#include "oryutils/forms/interno/ToolkitPadrao.hpp"

#include "oryutils/forms/console/ToolkitConsole.hpp"

namespace OryUtils {

TToolkit& BuscarToolkitPadrao() {
    static TToolkitConsole console;
    return console;
}

}  // namespace OryUtils
