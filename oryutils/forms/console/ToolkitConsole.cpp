#include "oryutils/forms/console/ToolkitConsole.hpp"

#include "oryutils/runtime/Utf.hpp"

#include <cstdio>

namespace OryUtils {

void TToolkitConsole::MostrarMensagem(TTipoMensagem, std::u16string_view ATitulo, std::u16string_view AMensagem) {
    std::fprintf(stderr, "%s: %s\n", ParaUtf8(ATitulo).c_str(), ParaUtf8(AMensagem).c_str());
}

}  // namespace OryUtils
