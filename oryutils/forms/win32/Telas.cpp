#include "oryutils/forms/win32/interno/Telas.hpp"

#include "oryutils/platform/BibliotecaDinamica.hpp"

namespace OryUtils::Interno {
namespace {

// A function that older systems do not have: null there. Its library stays loaded.
template <typename T>
T* BuscarFuncao(std::u16string_view ABiblioteca, const char* ANome) {
    TBibliotecaDinamica biblioteca(ABiblioteca);
    T* const funcao = biblioteca.Buscar<T>(ANome);
    biblioteca.Soltar();
    return funcao;
}

int BuscarPixelsPorPolegada(HMONITOR AMonitor) {
    static auto* const buscar =
        BuscarFuncao<HRESULT WINAPI(HMONITOR, int, UINT*, UINT*)>(u"shcore.dll", "GetDpiForMonitor");
    UINT horizontal = 0;
    UINT vertical = 0;
    if (buscar && buscar(AMonitor, 0, &horizontal, &vertical) == S_OK) return static_cast<int>(vertical);
    const HDC tela = ::GetDC(nullptr);
    const int pixels = ::GetDeviceCaps(tela, LOGPIXELSY);
    ::ReleaseDC(nullptr, tela);
    return pixels;
}

}  // namespace

TTelaWin32 BuscarTelaDoSistema(void* AJanela) {
    const HMONITOR monitor = ::MonitorFromWindow(static_cast<HWND>(AJanela), MONITOR_DEFAULTTOPRIMARY);
    MONITORINFO dados{};
    dados.cbSize = sizeof dados;
    ::GetMonitorInfoW(monitor, &dados);
    const RECT& area = dados.rcWork;
    return {{static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right - area.left),
             static_cast<int>(area.bottom - area.top)},
            BuscarPixelsPorPolegada(monitor)};
}

SIZE BuscarTamanhoExterno(HWND AJanela, TTamanho ACliente, int AEscala) {
    static auto* const ajustar =
        BuscarFuncao<BOOL WINAPI(RECT*, DWORD, BOOL, DWORD, UINT)>(u"user32.dll", "AdjustWindowRectExForDpi");
    const auto estilo = static_cast<DWORD>(::GetWindowLongPtrW(AJanela, GWL_STYLE));
    const auto estendido = static_cast<DWORD>(::GetWindowLongPtrW(AJanela, GWL_EXSTYLE));
    RECT r{0, 0, ACliente.Largura, ACliente.Altura};
    if (!ajustar || !ajustar(&r, estilo, FALSE, estendido, static_cast<UINT>(AEscala)))
        ::AdjustWindowRectEx(&r, estilo, FALSE, estendido);
    return {r.right - r.left, r.bottom - r.top};
}

}  // namespace OryUtils::Interno
