#include "oryutils/forms/interno/ToolkitPadrao.hpp"

#include "oryutils/forms/console/ToolkitConsole.hpp"
#include "oryutils/forms/win32/ToolkitWin32.hpp"

namespace OryUtils {

TToolkit& BuscarToolkitPadrao() {
    static const bool temTela = TToolkitWin32::HaAreaDeTrabalho();
    if (temTela) {
        static TToolkitWin32 win32(TToolkitWin32::GetThreadDeCarga());
        return win32;
    }
    static TToolkitConsole console;
    return console;
}

}  // namespace OryUtils
