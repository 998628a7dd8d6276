#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"

#include "oryutils/forms/win32/interno/JanelaWin32.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// Buttons and wheel of the mouse, on the client area or on the frame; a letter, which an input method gives without a
// key. TratarTecla tells of keys.
bool EhIntervencao(UINT AMensagem) {
    switch (AMensagem) {
        case WM_LBUTTONDOWN:
        case WM_RBUTTONDOWN:
        case WM_MBUTTONDOWN:
        case WM_XBUTTONDOWN:
        case WM_NCLBUTTONDOWN:
        case WM_NCRBUTTONDOWN:
        case WM_NCMBUTTONDOWN:
        case WM_MOUSEWHEEL:
        case WM_CHAR:
            return true;
        default:
            return false;
    }
}

}  // namespace

void TLacoDeMensagens::Despachar(MSG& AMensagem) {
    const auto alvo = std::find_if(Janelas.rbegin(), Janelas.rend(), [&](const TJanelaWin32* AJanela) {
        const HWND janela = AJanela->GetHandle();
        return janela && (AMensagem.hwnd == janela || ::IsChild(janela, AMensagem.hwnd));
    });
    if (alvo != Janelas.rend() && EhIntervencao(AMensagem.message)) (*alvo)->AvisarIntervencao();
    const bool gasta = alvo != Janelas.rend() &&
                       ((*alvo)->TratarTecla(AMensagem) || ::IsDialogMessageW((*alvo)->GetHandle(), &AMensagem));
    if (!gasta) {
        ::TranslateMessage(&AMensagem);
        ::DispatchMessageW(&AMensagem);
    }
    if (!Janelas.empty()) Janelas.back()->AcompanharFoco();
}

void TLacoDeMensagens::Bombear() {
    // A window may answer each message by another one to itself: the queue is then never empty. So few at a time leave
    // the processor free while a wait processes messages a hundred times in a second.
    constexpr int CMaximo = 20;
    std::exception_ptr excecao;
    {
        const TNaPilha<std::exception_ptr*> destino(Destinos, &excecao);
        MSG mensagem;
        for (int vez = 0; vez < CMaximo && !excecao; ++vez) {
            if (!::PeekMessageW(&mensagem, nullptr, 0, 0, PM_REMOVE)) break;
            if (mensagem.message == WM_QUIT) {
                // The message that ends the program must reach the loops below this one too.
                ::PostQuitMessage(static_cast<int>(mensagem.wParam));
                for (TJanelaWin32* janela : Exibidas) janela->Fechar();
                break;
            }
            Despachar(mensagem);
        }
    }
    if (excecao) std::rethrow_exception(excecao);
    for (TJanelaWin32* janela : Exibidas) janela->RelancarErro();
}

HINSTANCE BuscarModulo() noexcept {
    HMODULE modulo = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                         reinterpret_cast<LPCWSTR>(&BuscarModulo), &modulo);
    return modulo;
}

}  // namespace OryUtils::Interno
