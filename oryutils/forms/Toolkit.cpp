#include "oryutils/forms/Toolkit.hpp"

#include "oryutils/forms/interno/ToolkitPadrao.hpp"
#include "oryutils/runtime/Excecoes.hpp"

namespace OryUtils {
namespace {

TToolkit* GInstalado = nullptr;

}  // namespace

TToolkit& BuscarToolkit() { return GInstalado ? *GInstalado : BuscarToolkitPadrao(); }

TToolkit& ExigirToolkit() {
    TToolkit& toolkit = BuscarToolkit();
    if (!toolkit.EhThreadDaInterface())
        throw Exception(u"Formulários só podem ser mostrados pela thread da interface do usuário.");
    return toolkit;
}

void InstalarToolkit(TToolkit* AToolkit) { GInstalado = AToolkit; }

}  // namespace OryUtils
