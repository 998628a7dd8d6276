#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <array>
#include <commctrl.h>

namespace OryUtils {
namespace {

struct TTeclaVirtual {
    WPARAM Codigo;
    TTeclaMascara Tecla;
};
constexpr std::array CTeclas{TTeclaVirtual{VK_LEFT, tmEsquerda}, TTeclaVirtual{VK_RIGHT, tmDireita},
                             TTeclaVirtual{VK_HOME, tmInicio}, TTeclaVirtual{VK_END, tmFim},
                             TTeclaVirtual{VK_DELETE, tmExcluir}};

bool EstahPressionada(int ATecla) { return ::GetKeyState(ATecla) < 0; }

}  // namespace

struct TEdicaoMascaradaWin32::TTratador {
    static LRESULT CALLBACK Receber(HWND AJanela, UINT AMensagem, WPARAM AWParam, LPARAM ALParam, UINT_PTR AId,
                                    DWORD_PTR ADados) {
        auto& edicao = *reinterpret_cast<TEdicaoMascaradaWin32*>(ADados);
        if (AMensagem == WM_NCDESTROY) {
            ::RemoveWindowSubclass(AJanela, &Receber, AId);
            edicao.FJanela = nullptr;
            return ::DefSubclassProc(AJanela, AMensagem, AWParam, ALParam);
        }
        if (edicao.Tratar(AMensagem, AWParam)) return AMensagem == EM_UNDO || AMensagem == WM_SETTEXT;
        const LRESULT resultado = ::DefSubclassProc(AJanela, AMensagem, AWParam, ALParam);
        if (edicao.FEscrevendo) return resultado;
        if (AMensagem == WM_SETFOCUS) edicao.AoEntrar();
        if (AMensagem == WM_KILLFOCUS) edicao.AoSair(edicao.Ler().Texto);
        // A text that the program writes is brought into the mask.
        if (AMensagem == WM_SETTEXT) edicao.Mostrar(edicao.Ajustar(edicao.Ler()));
        return resultado;
    }
};

TEdicaoMascaradaWin32::TEdicaoMascaradaWin32(HWND__* AJanela, TField& ACampo)
    : TEditorDeCampo(ACampo), FJanela(AJanela) {
    ::SetWindowSubclass(AJanela, &TTratador::Receber, reinterpret_cast<UINT_PTR>(this),
                        reinterpret_cast<DWORD_PTR>(this));
    if (::GetFocus() == AJanela)
        AoEntrar();
    else
        Atualizar();
}

TEdicaoMascaradaWin32::~TEdicaoMascaradaWin32() {
    if (FJanela) ::RemoveWindowSubclass(FJanela, &TTratador::Receber, reinterpret_cast<UINT_PTR>(this));
}

void TEdicaoMascaradaWin32::Gravar() {
    if (FJanela) AoGravar(Ler().Texto);
}

TEdicaoMascara TEdicaoMascaradaWin32::Ler() const {
    std::wstring texto(static_cast<std::size_t>(::GetWindowTextLengthW(FJanela)), L'\0');
    texto.resize(static_cast<std::size_t>(::GetWindowTextW(FJanela, texto.data(), static_cast<int>(texto.size()) + 1)));
    DWORD inicio = 0, fim = 0;
    ::SendMessageW(FJanela, EM_GETSEL, reinterpret_cast<WPARAM>(&inicio), reinterpret_cast<LPARAM>(&fim));
    return {Interno::DeWide(texto), fim, inicio};
}

void TEdicaoMascaradaWin32::Mostrar(const TEdicaoMascara& AEdicao) {
    if (!FJanela) return;
    FEscrevendo = true;
    if (Ler().Texto != AEdicao.Texto) ::SetWindowTextW(FJanela, Interno::ParaWide(AEdicao.Texto));
    ::SendMessageW(FJanela, EM_SETSEL, AEdicao.Ancora, static_cast<LPARAM>(AEdicao.Cursor));
    ::SendMessageW(FJanela, EM_SCROLLCARET, 0, 0);
    FEscrevendo = false;
}

void TEdicaoMascaradaWin32::ColarDaAreaDeTransferencia() {
    if (!::OpenClipboard(FJanela)) return;
    std::u16string texto;
    if (const HANDLE dados = ::GetClipboardData(CF_UNICODETEXT)) {
        if (const auto* inicio = static_cast<const wchar_t*>(::GlobalLock(dados))) {
            const std::size_t maximo = ::GlobalSize(dados) / sizeof(wchar_t);
            texto =
                Interno::DeWide({inicio, static_cast<std::size_t>(std::find(inicio, inicio + maximo, L'\0') - inicio)});
            ::GlobalUnlock(dados);
        }
    }
    ::CloseClipboard();
    if (!texto.empty()) Mostrar(Colar(Ler(), texto));
}

/// True when the message is spent.
bool TEdicaoMascaradaWin32::Tratar(unsigned AMensagem, std::uintptr_t AWParam) {
    constexpr WPARAM CBackspace = 8;
    if (FEscrevendo || (::GetWindowLongPtrW(FJanela, GWL_STYLE) & ES_READONLY)) return false;
    switch (AMensagem) {
        case WM_CHAR:
            if (AWParam == CBackspace)
                Mostrar(Teclar(Ler(), tmApagar));
            else if (AWParam < u' ' || EstahPressionada(VK_CONTROL) != EstahPressionada(VK_MENU))
                return false;
            else
                Mostrar(Digitar(Ler(), static_cast<char16_t>(AWParam)));
            return true;
        case WM_KEYDOWN: {
            const auto* tecla = std::ranges::find(CTeclas, AWParam, &TTeclaVirtual::Codigo);
            if (tecla == CTeclas.end() || EstahPressionada(VK_SHIFT) || EstahPressionada(VK_CONTROL)) return false;
            Mostrar(Teclar(Ler(), tecla->Tecla));
            return true;
        }
        case WM_PASTE:
            ColarDaAreaDeTransferencia();
            return true;
        case WM_CUT:
            ::SendMessageW(FJanela, WM_COPY, 0, 0);
            [[fallthrough]];
        case WM_CLEAR:
            if (const TEdicaoMascara edicao = Ler(); edicao.Cursor != edicao.Ancora) Mostrar(Teclar(edicao, tmExcluir));
            return true;
        case WM_UNDO:
        case EM_UNDO:
            return true;
        default:
            return false;
    }
}

}  // namespace OryUtils
