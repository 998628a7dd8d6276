// The sample window with the system's own controls: a host of the library that knows nothing of its forms.
#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "apps/cadastro/Cadastro.hpp"

#include <optional>
#include <vector>

namespace OryUtils::Cadastro {
namespace {

constexpr UINT CSaiuDoCampo = WM_APP + 1;
constexpr int CPrimeiroCampo = 100;
constexpr int CSalvar = 1;  // IDOK: what Enter presses
constexpr int CFechar = 2;  // IDCANCEL: what Esc presses
constexpr int CPorExtenso = 50;

class TJanelaCadastro {
public:
    explicit TJanelaCadastro(HINSTANCE AModulo) : FModulo(AModulo) {
        NONCLIENTMETRICSW metricas{};
        metricas.cbSize = sizeof metricas;
        ::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metricas, &metricas, 0);
        FFonte = ::CreateFontIndirectW(&metricas.lfMessageFont);
        WNDCLASSEXW classe{};
        classe.cbSize = sizeof classe;
        classe.lpfnWndProc = &TJanelaCadastro::Procedimento;
        classe.hInstance = AModulo;
        classe.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
        classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
        classe.lpszClassName = L"TJanelaCadastro";
        ::RegisterClassExW(&classe);
        Montar();
    }
    ~TJanelaCadastro() { ::DeleteObject(FFonte); }
    TJanelaCadastro(const TJanelaCadastro&) = delete;
    TJanelaCadastro& operator=(const TJanelaCadastro&) = delete;

    int Executar() {
        ::ShowWindow(FJanela, SW_SHOWNORMAL);
        ::SetFocus(FCampos[0]);
        MSG mensagem;
        while (::GetMessageW(&mensagem, nullptr, 0, 0) > 0) {
            if (::IsDialogMessageW(FJanela, &mensagem)) continue;
            ::TranslateMessage(&mensagem);
            ::DispatchMessageW(&mensagem);
        }
        return static_cast<int>(mensagem.wParam);
    }

private:
    void Montar() {
        constexpr int CMargem = 12, CLarguraRotulo = 140, CAlturaLinha = 32, CAlturaCaixa = 23, CLarguraLetra = 7;
        constexpr int CLarguraBotao = 85, CAlturaBotao = 26, CAlturaLista = 200;
        constexpr DWORD CEstilo = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
        RECT r{0, 0, CLarguraRotulo + 40 * CLarguraLetra + 3 * CMargem,
               (CQuantidadeCampos + 1) * CAlturaLinha + CAlturaBotao + 3 * CMargem};
        const int larguraCliente = static_cast<int>(r.right);
        ::AdjustWindowRectEx(&r, CEstilo, FALSE, WS_EX_CONTROLPARENT);
        ::CreateWindowExW(WS_EX_CONTROLPARENT, L"TJanelaCadastro", Texto(CTituloCadastro).c_str(), CEstilo,
                          CW_USEDEFAULT, CW_USEDEFAULT, static_cast<int>(r.right - r.left),
                          static_cast<int>(r.bottom - r.top), nullptr, nullptr, FModulo, this);
        int y = CMargem;
        for (std::size_t i = 0; i < CCampos.size(); ++i, y += CAlturaLinha) {
            const TDescricaoCampo& campo = CCampos[i];
            const int x = CMargem + CLarguraRotulo;
            Criar(L"STATIC", campo.Caption, 0, {CMargem, y + 3, CMargem + CLarguraRotulo, y + CAlturaCaixa}, 0);
            const DWORD estilo = campo.Lista ? CBS_DROPDOWNLIST | WS_VSCROLL : ES_AUTOHSCROLL | WS_BORDER;
            FCampos.push_back(Criar(
                campo.Lista ? L"COMBOBOX" : L"EDIT", u"", estilo | WS_TABSTOP,
                {x, y, x + campo.Largura * CLarguraLetra + CMargem, y + (campo.Lista ? CAlturaLista : CAlturaCaixa)},
                CPrimeiroCampo + static_cast<int>(i)));
            if (i == caValor) {
                y += CAlturaLinha;
                Criar(L"STATIC", u"", SS_NOPREFIX, {x, y - 4, larguraCliente - CMargem, y + CAlturaLinha - 8},
                      CPorExtenso);
            }
            if (!campo.Lista) continue;
            for (const auto& uf : CUFs)
                ::SendMessageW(FCampos.back(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Texto(uf).c_str()));
        }
        y += CMargem;
        const int x = larguraCliente - 2 * (CLarguraBotao + CMargem);
        Criar(L"BUTTON", CCaptionSalvar, BS_DEFPUSHBUTTON | WS_TABSTOP, {x, y, x + CLarguraBotao, y + CAlturaBotao},
              CSalvar);
        Criar(L"BUTTON", CCaptionFechar, WS_TABSTOP,
              {x + CLarguraBotao + CMargem, y, x + 2 * CLarguraBotao + CMargem, y + CAlturaBotao}, CFechar);
    }

    static std::wstring Texto(std::u16string_view ATexto) {
        return {Plataforma::ParaWide(ATexto.data()), ATexto.size()};
    }

    HWND Criar(const wchar_t* AClasse, std::u16string_view ATexto, DWORD AEstilo, const RECT& ALugar, int AId) const {
        const HWND janela =
            ::CreateWindowExW(0, AClasse, Texto(ATexto).c_str(), AEstilo | WS_CHILD | WS_VISIBLE, ALugar.left,
                              ALugar.top, ALugar.right - ALugar.left, ALugar.bottom - ALugar.top, FJanela,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(AId)), FModulo, nullptr);
        ::SendMessageW(janela, WM_SETFONT, reinterpret_cast<WPARAM>(FFonte), FALSE);
        return janela;
    }

    TValores LerValores() const {
        TValores valores;
        for (std::size_t i = 0; i < FCampos.size(); ++i) {
            std::wstring texto(static_cast<std::size_t>(::GetWindowTextLengthW(FCampos[i])), L'\0');
            ::GetWindowTextW(FCampos[i], texto.data(), static_cast<int>(texto.size()) + 1);
            valores[i] = Plataforma::DeWide(texto);
        }
        return valores;
    }

    /// A handler of the host: what aborts ends silently, any other error is shown.
    template <typename TTratador>
    void Tratar(TTratador&& ATratador) {
        FValidando = true;
        try {
            ATratador();
        } catch (const EAbort&) {
        } catch (const Exception& erro) {
            GOryUtilsDialogs->Erro(erro.GetMensagem());
        }
        FValidando = false;
    }

    /// Left for another field: the value must hold. Leaving for the close button is always allowed.
    void AoSair(std::size_t ACampo) {
        const HWND foco = ::GetFocus();
        if (FValidando || foco == FCampos[ACampo] || !::IsChild(FJanela, foco) ||
            foco == ::GetDlgItem(FJanela, CFechar))
            return;
        Tratar([&] {
            TControleWin32 controle(FCampos[ACampo]);
            CCampos[ACampo].Validar(&controle, &controle, LerValores());
        });
    }

    void AoSalvar() {
        if (FValidando) return;
        Tratar([&] {
            std::vector<TControleWin32> adaptadores(FCampos.begin(), FCampos.end());
            TControles controles{};
            for (std::size_t i = 0; i < controles.size(); ++i) controles[i] = &adaptadores[i];
            Salvar(LerValores(), controles);
        });
    }

    void AoComandar(int AId, int ANotificacao) {
        const bool campo = AId >= CPrimeiroCampo && AId < CPrimeiroCampo + CQuantidadeCampos;
        const bool lista = campo && CCampos[static_cast<std::size_t>(AId - CPrimeiroCampo)].Lista;
        // The focus is still moving: the check waits for its own message. The focus that a warning takes away, and
        // gives back, is not an exit.
        if (campo && !FValidando && ANotificacao == (lista ? CBN_KILLFOCUS : EN_KILLFOCUS))
            ::PostMessageW(FJanela, CSaiuDoCampo, static_cast<WPARAM>(AId - CPrimeiroCampo), 0);
        if (AId == CPrimeiroCampo + caValor && ANotificacao == EN_CHANGE && FCampos.size() > caValor)
            ::SetDlgItemTextW(FJanela, CPorExtenso, Texto(EscreverPorExtenso(LerValores()[caValor])).c_str());
        if (AId == CSalvar) AoSalvar();
        if (AId == CFechar) ::DestroyWindow(FJanela);
    }

    static LRESULT CALLBACK Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL) {
        if (AMensagem == WM_NCCREATE) {
            auto* nova = static_cast<TJanelaCadastro*>(reinterpret_cast<const CREATESTRUCTW*>(AL)->lpCreateParams);
            nova->FJanela = AJanela;
            ::SetWindowLongPtrW(AJanela, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(nova));
        }
        auto* cadastro = reinterpret_cast<TJanelaCadastro*>(::GetWindowLongPtrW(AJanela, GWLP_USERDATA));
        switch (AMensagem) {
            case WM_COMMAND:
                cadastro->AoComandar(LOWORD(AW), HIWORD(AW));
                return 0;
            case CSaiuDoCampo:
                cadastro->AoSair(AW);
                return 0;
            case WM_DESTROY:
                ::PostQuitMessage(0);
                return 0;
            default:
                return ::DefWindowProcW(AJanela, AMensagem, AW, AL);
        }
    }

    HINSTANCE FModulo;
    HFONT FFonte = nullptr;
    HWND FJanela = nullptr;
    std::vector<HWND> FCampos;
    bool FValidando = false;
};

}  // namespace
}  // namespace OryUtils::Cadastro

int WINAPI WinMain(HINSTANCE AModulo, HINSTANCE, LPSTR, int) {
    OryUtils::GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().Configurar();
    return OryUtils::Cadastro::TJanelaCadastro(AModulo).Executar();
}
