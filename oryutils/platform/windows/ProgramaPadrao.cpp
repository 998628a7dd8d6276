#include "oryutils/platform/ProgramaPadrao.hpp"

#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/Pastas.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <shellapi.h>

namespace OryUtils::Interno {

bool AbrirComProgramaPadrao(std::u16string_view AArquivo, std::u16string_view AParametros) {
    if (!ExisteArquivo(AArquivo) && !ExistePasta(AArquivo)) return false;
    const std::u16string arquivo(AArquivo);
    const std::u16string parametros(AParametros);
    SHELLEXECUTEINFOW pedido{};
    pedido.cbSize = sizeof pedido;
    // A failure is answered, not shown.
    pedido.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    pedido.lpVerb = L"open";
    pedido.lpFile = ParaWide(arquivo);
    pedido.lpParameters = parametros.empty() ? nullptr : ParaWide(parametros);
    pedido.nShow = SW_SHOWNORMAL;
    return ::ShellExecuteExW(&pedido) != 0;
}

}  // namespace OryUtils::Interno
