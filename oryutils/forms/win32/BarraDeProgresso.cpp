#include "oryutils/forms/win32/interno/BarraDeProgresso.hpp"

#include <algorithm>
#include <commctrl.h>

namespace OryUtils::Interno {
namespace {

constexpr int CMaximo = 1000;
constexpr UINT_PTR CDesenhista = 1;
constexpr const wchar_t* CPropriedade = L"OryUtilsVagueia";
constexpr UINT_PTR CRelogio = 1;
constexpr UINT CQuadro = 40;        // milliseconds between two pictures
constexpr ULONGLONG CVolta = 2000;  // milliseconds from the left end to the right one and back
constexpr int CParteDoBloco = 5;    // of the bar

void DesenharBloco(HWND AJanela) {
    PAINTSTRUCT pintura;
    const HDC tela = ::BeginPaint(AJanela, &pintura);
    RECT area{};
    ::GetClientRect(AJanela, &area);
    ::FrameRect(tela, &area, ::GetSysColorBrush(COLOR_BTNSHADOW));
    ::InflateRect(&area, -1, -1);
    const int espaco = static_cast<int>(area.right - area.left);
    const int largura = espaco / CParteDoBloco;
    const int caminho = espaco - largura;
    const auto instante = static_cast<int>(::GetTickCount64() % CVolta);
    const int meiaVolta = static_cast<int>(CVolta / 2);
    const int ida = instante < meiaVolta ? instante : 2 * meiaVolta - instante;
    RECT bloco = area;
    bloco.left = area.left + caminho * ida / meiaVolta;
    bloco.right = bloco.left + largura;
    RECT antes = area, depois = area;
    antes.right = bloco.left;
    depois.left = bloco.right;
    ::FillRect(tela, &antes, ::GetSysColorBrush(COLOR_BTNFACE));
    ::FillRect(tela, &bloco, ::GetSysColorBrush(COLOR_HIGHLIGHT));
    ::FillRect(tela, &depois, ::GetSysColorBrush(COLOR_BTNFACE));
    ::EndPaint(AJanela, &pintura);
}

LRESULT CALLBACK Receber(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL, UINT_PTR, DWORD_PTR) {
    switch (AMensagem) {
        case WM_PAINT:
            DesenharBloco(AJanela);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_TIMER:
            ::InvalidateRect(AJanela, nullptr, FALSE);
            return 0;
        case WM_NCDESTROY:
            ::RemovePropW(AJanela, CPropriedade);
            ::RemoveWindowSubclass(AJanela, &Receber, CDesenhista);
            break;
        default:
            break;
    }
    return ::DefSubclassProc(AJanela, AMensagem, AW, AL);
}

}  // namespace

void MostrarPercentual(HWND AJanela, double APercentual) {
    const bool vagueava = ::GetPropW(AJanela, CPropriedade) != nullptr;
    const bool vagueia = APercentual < 0;
    if (vagueia && !vagueava) {
        ::SetPropW(AJanela, CPropriedade, AJanela);
        ::SetWindowSubclass(AJanela, &Receber, CDesenhista, 0);
        ::SetTimer(AJanela, CRelogio, CQuadro, nullptr);
    } else if (!vagueia && vagueava) {
        ::RemovePropW(AJanela, CPropriedade);
        ::RemoveWindowSubclass(AJanela, &Receber, CDesenhista);
        ::KillTimer(AJanela, CRelogio);
    }
    if (vagueia != vagueava) ::InvalidateRect(AJanela, nullptr, TRUE);
    ::SendMessageW(AJanela, PBM_SETRANGE32, 0, CMaximo);
    const double percentual = std::clamp(APercentual, 0.0, 100.0);
    ::SendMessageW(AJanela, PBM_SETPOS, static_cast<WPARAM>(percentual * CMaximo / 100), 0);
}

}  // namespace OryUtils::Interno
