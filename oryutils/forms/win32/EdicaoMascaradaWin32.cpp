#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <array>
#include <commctrl.h>
#include <utility>

namespace OryUtils {
namespace {

struct TTeclaVirtual {
    WPARAM Codigo;
    TTeclaMascara Tecla;
};
constexpr std::array CTeclas{TTeclaVirtual{VK_LEFT, tmEsquerda}, TTeclaVirtual{VK_RIGHT, tmDireita},
                             TTeclaVirtual{VK_HOME, tmInicio}, TTeclaVirtual{VK_END, tmFim},
                             TTeclaVirtual{VK_DELETE, tmExcluir}};

/// Messages after which the control may hold another text.
constexpr std::array<UINT, 9> CQueMudamOTexto{WM_CHAR,  WM_KEYDOWN,  WM_SETTEXT,    WM_PASTE,          WM_CUT,
                                              WM_CLEAR, WM_IME_CHAR, EM_REPLACESEL, WM_IME_COMPOSITION};

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
        if (AMensagem == EM_CANUNDO) return edicao.EstahModificado();
        if (edicao.Tratar(AMensagem, AWParam)) return AMensagem == EM_UNDO;
        const LRESULT resultado = ::DefSubclassProc(AJanela, AMensagem, AWParam, ALParam);
        if (edicao.FEscrevendo || !edicao.FJanela) return resultado;
        const bool entrou = AMensagem == WM_SETFOCUS || (AMensagem == EM_SETREADONLY && ::GetFocus() == AJanela);
        if (entrou && !edicao.EhSomenteLeitura()) edicao.AoEntrar();
        if (AMensagem == WM_KILLFOCUS) edicao.Deixar(reinterpret_cast<HWND>(AWParam));
        if (std::ranges::find(CQueMudamOTexto, AMensagem) != CQueMudamOTexto.end()) edicao.ConferirTexto();
        return resultado;
    }
};

TEdicaoMascaradaWin32::TEdicaoMascaradaWin32(HWND__* AJanela, TField& ACampo)
    : TEditorDeCampo(ACampo), FJanela(AJanela) {
    ::SetWindowSubclass(AJanela, &TTratador::Receber, reinterpret_cast<UINT_PTR>(this),
                        reinterpret_cast<DWORD_PTR>(this));
    if (::GetFocus() == AJanela && !EhSomenteLeitura())
        AoEntrar();
    else
        Atualizar();
}

TEdicaoMascaradaWin32::~TEdicaoMascaradaWin32() {
    if (FJanela) ::RemoveWindowSubclass(FJanela, &TTratador::Receber, reinterpret_cast<UINT_PTR>(this));
}

bool TEdicaoMascaradaWin32::EhSomenteLeitura() const {
    return !FJanela || (::GetWindowLongPtrW(FJanela, GWL_STYLE) & ES_READONLY);
}

void TEdicaoMascaradaWin32::Bipar() { ::MessageBeep(MB_OK); }

TEdicaoMascara TEdicaoMascaradaWin32::Ler() const {
    if (!FJanela) return {};
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
    FConferido = Ler().Texto;
}

/// A text that came some other way than by the editor: from the program, or by a key of the control's own.
void TEdicaoMascaradaWin32::ConferirTexto() {
    std::u16string texto = Ler().Texto;
    if (texto == FConferido) return;
    FConferido = std::move(texto);
    AoMudarTexto();
}

/// The focus goes to AOutra; null when that belongs to another process.
void TEdicaoMascaradaWin32::Deixar(HWND__* AOutra) {
    if (AOutra && ::GetAncestor(AOutra, GA_ROOT) == ::GetAncestor(FJanela, GA_ROOT))
        AoSair();
    else
        AoSuspender();
}

void TEdicaoMascaradaWin32::ColarDaAreaDeTransferencia() {
    if (!::OpenClipboard(FJanela)) return Bipar();
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
    if (!texto.empty()) AoColar(texto);
}

void TEdicaoMascaradaWin32::Recortar() {
    const TEdicaoMascara edicao = Ler();
    if (edicao.Cursor != edicao.Ancora) AoTeclar(tmExcluir);
}

bool TEdicaoMascaradaWin32::TratarCaractere(char16_t ACaractere) {
    constexpr char16_t CBackspace = 8, CDesfazer = 0x1A, CEsc = 0x1B, CBackspaceComCtrl = 0x7F;
    const bool decimal = std::exchange(FDecimal, false);
    if (ACaractere == CDesfazer || ACaractere == CEsc) return true;  // the key has been seen to
    if (!TrataTexto()) return false;
    if (ACaractere == CBackspace || ACaractere == CBackspaceComCtrl)
        AoTeclar(tmApagar);
    else if (ACaractere < u' ' || EstahPressionada(VK_CONTROL) != EstahPressionada(VK_MENU))
        return false;
    else if (decimal)
        AoTeclarDecimal();
    else
        AoDigitar(ACaractere);
    return true;
}

bool TEdicaoMascaradaWin32::TratarTecla(std::uintptr_t ACodigo) {
    FDecimal = ACodigo == VK_DECIMAL;
    const bool ctrl = EstahPressionada(VK_CONTROL), shift = EstahPressionada(VK_SHIFT);
    // A dialog takes Esc before the control sees it.
    if (ACodigo == VK_ESCAPE || (ACodigo == 'Z' && ctrl && !shift && !EstahPressionada(VK_MENU))) return Desfazer();
    const auto* tecla = std::ranges::find(CTeclas, ACodigo, &TTeclaVirtual::Codigo);
    if (!TrataTeclas() || tecla == CTeclas.end() || shift || ctrl) return false;
    AoTeclar(tecla->Tecla);
    return true;
}

/// True when the message is spent.
bool TEdicaoMascaradaWin32::Tratar(unsigned AMensagem, std::uintptr_t AWParam) {
    if (FEscrevendo || EhSomenteLeitura()) return false;
    switch (AMensagem) {
        case WM_CHAR:
            return TratarCaractere(static_cast<char16_t>(AWParam));
        case WM_KEYDOWN:
            return TratarTecla(AWParam);
        case WM_UNDO:
        case EM_UNDO:
            Desfazer();
            return true;
        default:
            break;
    }
    if (!TrataTexto()) return false;
    switch (AMensagem) {
        case WM_PASTE:
            ColarDaAreaDeTransferencia();
            return true;
        case WM_CUT:
            ::SendMessageW(FJanela, WM_COPY, 0, 0);
            Recortar();
            return true;
        case WM_CLEAR:
            Recortar();
            return true;
        default:
            return false;
    }
}

}  // namespace OryUtils
