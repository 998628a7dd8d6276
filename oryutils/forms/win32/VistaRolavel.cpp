#include "oryutils/forms/win32/interno/VistaRolavel.hpp"

#include "oryutils/forms/win32/interno/ClasseDeJanela.hpp"
#include "oryutils/runtime/Excecoes.hpp"

namespace OryUtils::Interno {
namespace {

SCROLLINFO BuscarRolagem(HWND AVista) {
    SCROLLINFO rolagem{};
    rolagem.cbSize = sizeof rolagem;
    rolagem.fMask = SIF_ALL;
    ::GetScrollInfo(AVista, SB_VERT, &rolagem);
    return rolagem;
}

void RolarPara(HWND AVista, int APosicao) {
    SCROLLINFO rolagem = BuscarRolagem(AVista);
    const int antes = rolagem.nPos;
    rolagem.fMask = SIF_POS;
    rolagem.nPos = APosicao;
    ::SetScrollInfo(AVista, SB_VERT, &rolagem, TRUE);
    const int agora = BuscarRolagem(AVista).nPos;  // kept within its limits
    if (agora != antes)
        ::ScrollWindowEx(AVista, 0, antes - agora, nullptr, nullptr, nullptr, nullptr,
                         SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

int BuscarLinha(HWND AVista) { return static_cast<int>(::GetWindowLongPtrW(AVista, GWLP_USERDATA)); }

void AoRolar(HWND AVista, WORD AComando) {
    const SCROLLINFO rolagem = BuscarRolagem(AVista);
    const int pagina = static_cast<int>(rolagem.nPage);
    switch (AComando) {
        case SB_LINEUP:
            return RolarPara(AVista, rolagem.nPos - BuscarLinha(AVista));
        case SB_LINEDOWN:
            return RolarPara(AVista, rolagem.nPos + BuscarLinha(AVista));
        case SB_PAGEUP:
            return RolarPara(AVista, rolagem.nPos - pagina);
        case SB_PAGEDOWN:
            return RolarPara(AVista, rolagem.nPos + pagina);
        case SB_TOP:
            return RolarPara(AVista, rolagem.nMin);
        case SB_BOTTOM:
            return RolarPara(AVista, rolagem.nMax);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return RolarPara(AVista, rolagem.nTrackPos);
        default:
            return;
    }
}

void MostrarFilho(HWND AVista, HWND AFilho) {
    RECT filho{};
    RECT vista{};
    ::GetWindowRect(AFilho, &filho);
    ::MapWindowPoints(nullptr, AVista, reinterpret_cast<POINT*>(&filho), 2);
    ::GetClientRect(AVista, &vista);
    const int posicao = BuscarRolagem(AVista).nPos;
    if (filho.top < 0)
        RolarPara(AVista, posicao + static_cast<int>(filho.top));
    else if (filho.bottom > vista.bottom)
        RolarPara(AVista, posicao + static_cast<int>(filho.bottom - vista.bottom));
}

LRESULT CALLBACK Procedimento(HWND AVista, UINT AMensagem, WPARAM AW, LPARAM AL) {
    switch (AMensagem) {
        case WM_VSCROLL:
            AoRolar(AVista, LOWORD(AW));
            return 0;
        case WM_MOUSEWHEEL: {
            constexpr int CLinhasPorGiro = 3;
            const int giro = static_cast<short>(HIWORD(AW));
            RolarPara(AVista, BuscarRolagem(AVista).nPos - giro * CLinhasPorGiro * BuscarLinha(AVista) / WHEEL_DELTA);
            return 0;
        }
        case WM_COMMAND:
            if (AL && HIWORD(AW) == BN_SETFOCUS) MostrarFilho(AVista, reinterpret_cast<HWND>(AL));
            return ::SendMessageW(::GetParent(AVista), AMensagem, AW, AL);
        default:
            return ::DefWindowProcW(AVista, AMensagem, AW, AL);
    }
}

}  // namespace

HWND CriarVistaRolavel(HWND APai) {
    static const TClasseDeJanela classe(L"TOryVistaRolavel", &Procedimento);
    const HWND vista = ::CreateWindowExW(WS_EX_CONTROLPARENT, classe.GetNome(), L"", WS_CHILD | WS_VSCROLL, 0, 0, 0, 0,
                                         APai, nullptr, BuscarModulo(), nullptr);
    if (!vista) throw Exception(u"Não foi possível criar um controle do formulário.");
    return vista;
}

void DefinirAlturaRolavel(HWND AVista, int AAltura, int ALinha) {
    RECT vista{};
    ::GetClientRect(AVista, &vista);
    SCROLLINFO rolagem{};
    rolagem.cbSize = sizeof rolagem;
    rolagem.fMask = SIF_ALL;
    rolagem.nMax = AAltura - 1;
    rolagem.nPage = static_cast<UINT>(vista.bottom);
    ::SetScrollInfo(AVista, SB_VERT, &rolagem, TRUE);
    ::SetWindowLongPtrW(AVista, GWLP_USERDATA, ALinha);
}

}  // namespace OryUtils::Interno
