#include "oryutils/forms/win32/ControleWin32.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils {

bool TControleWin32::PodeReceberFoco() const {
    if (!::IsWindow(FJanela) || !::IsWindowVisible(FJanela)) return false;
    // IsWindowVisible looks at the parents too; IsWindowEnabled does not.
    for (HWND janela = FJanela; janela;) {
        if (!::IsWindowEnabled(janela)) return false;
        const bool filha = (::GetWindowLongPtrW(janela, GWL_STYLE) & WS_CHILD) != 0;
        janela = filha ? ::GetParent(janela) : nullptr;
    }
    return true;
}

void TControleWin32::ReceberFoco() {
    // Setting the focus works inside the active window only.
    if (HWND raiz = ::GetAncestor(FJanela, GA_ROOT); raiz && raiz != ::GetActiveWindow()) ::SetActiveWindow(raiz);
    ::SetFocus(FJanela);
}

}  // namespace OryUtils
