#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/win32/ToolkitWin32.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include "forms/roteiros/Roteiros.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace OryUtils {

/// Real windows, driven from a timer: the system delivers a timer's tick only when no other message waits, so each step
/// sees all effects of the one before it.
class TUsuarioWin32 : public TUsuario {
public:
    TUsuarioWin32() : FToolkit(0, [this](void* AJanela) { return BuscarTela(AJanela); }) { InstalarToolkit(&FToolkit); }
    ~TUsuarioWin32() override {
        InstalarToolkit(nullptr);
        SoltarTeclas();
    }

    /// ARodar runs a loop of messages; APassos follow one another meanwhile, each when ADeveAndar. A loop that no step
    /// ended is a failure, and ADesistir ends it.
    template <typename TRodar>
    auto Conduzir(std::deque<std::function<void()>> APassos, const std::function<bool()>& ADeveAndar,
                  const std::function<void()>& ADesistir, TRodar ARodar) {
        constexpr int CIntervalo = 10;
        constexpr int CTiquesOciosos = 100;
        int ociosos = 0;
        const auto temporizador = FToolkit.LigarTemporizador(CIntervalo, [&] {
            if (!ADeveAndar()) return;
            if (!APassos.empty()) {
                const auto passo = std::move(APassos.front());
                APassos.pop_front();
                SoltarTeclas();
                passo();
            } else if (++ociosos == CTiquesOciosos) {
                ADD_FAILURE() << "no step ended the loop";
                ADesistir();
            }
        });
        struct TDesligar {
            TToolkit& Toolkit;
            std::uintptr_t Temporizador;
            ~TDesligar() { Toolkit.DesligarTemporizador(Temporizador); }
        } desligar{FToolkit, temporizador};
        return ARodar();
    }

    /// Runs AFormulario; APassos follow one another once it is shown. A form that nothing closed is a failure.
    int Executar(TFormulario& AFormulario, TPassos APassos) override {
        // A form inside of another has its own steps; the outer one's wait.
        return Conduzir(
            std::move(APassos), [&] { return ::IsWindowEnabled(Janela(AFormulario)) != 0; },
            [&] { AFormulario.SetModalResult(-1); }, [&] { return AFormulario.ExecutarModal(); });
    }

    void Conduzir(TPassos APassos, const std::function<void()>& AMostrar) override {
        Conduzir(
            std::move(APassos), [&] { return HaFormulario(); }, [&] { FecharJanela(); }, AMostrar);
    }
    bool HaFormulario() override { return BuscarFormulario() != nullptr; }
    void Teclar(std::uint16_t ATecla) override {
        Tecla(ATecla);
        if (ATecla == VK_SPACE) ::PostMessageW(::GetFocus(), WM_KEYUP, ATecla, 1);
    }
    void TeclarComAlt(char ALetra) override {
        constexpr LPARAM CAlt = 1 << 29;
        ::PostMessageW(::GetFocus(), WM_SYSKEYDOWN, static_cast<WPARAM>(ALetra), CAlt | 1);
    }
    void TeclarComCtrl(char ALetra) override {
        Digitar(VK_CONTROL, true);  // until the next step
        Tecla(static_cast<WPARAM>(ALetra));
    }
    void TeclarComShift(std::uint16_t ATecla) override {
        Digitar(VK_SHIFT, true);  // until the next step
        Tecla(ATecla);
    }
    TFoco VerFoco() override {
        const HWND focado = ::GetFocus();
        TFoco foco{RemoverAtalho(Texto(focado)), ::SendMessageW(focado, BM_GETCHECK, 0, 0) == BST_CHECKED};
        if (const auto item = ::SendMessageW(focado, LB_GETCARETINDEX, 0, 0); EhLista(focado) && item >= 0) {
            wchar_t texto[80]{};
            ::SendMessageW(focado, LB_GETTEXT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(texto));
            foco = {Interno::DeWide(texto), ::SendMessageW(focado, LB_GETSEL, static_cast<WPARAM>(item), 0) > 0};
        }
        for (const HWND filho : Filhos(::GetActiveWindow()))
            if ((::GetWindowLongPtrW(filho, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON && EhBotao(filho))
                foco.BotaoPadrao += RemoverAtalho(Texto(filho));
        return foco;
    }
    std::u16string LerAreaDeTransferencia() override {
        if (!::OpenClipboard(nullptr)) return u"(closed)";
        const HANDLE dados = ::GetClipboardData(CF_UNICODETEXT);
        const std::u16string texto =
            dados ? Interno::DeWide(static_cast<const wchar_t*>(::GlobalLock(dados))) : std::u16string();
        if (dados) ::GlobalUnlock(dados);
        ::CloseClipboard();
        return texto;
    }
    void Escrever(const char* ATexto) override { Escrever(std::wstring(ATexto, ATexto + std::strlen(ATexto)).c_str()); }
    void Clicar(std::u16string_view ACaption) override { ::PostMessageW(BuscarFilho(ACaption), BM_CLICK, 0, 0); }
    void ClicarComMouse(std::u16string_view ACaption) override {
        const HWND janela = BuscarFilho(ACaption);
        ::PostMessageW(janela, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        ::PostMessageW(janela, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
    void FecharJanela() override { ::PostMessageW(::GetActiveWindow(), WM_SYSCOMMAND, SC_CLOSE, 0); }
    void Redimensionar(const TFormulario& AFormulario, TTamanho ACliente) override {
        const HWND janela = Janela(AFormulario);
        RECT fora{}, cliente{};
        ::GetWindowRect(janela, &fora);
        ::GetClientRect(janela, &cliente);
        ::SetWindowPos(janela, nullptr, 10, 20, fora.right - fora.left - cliente.right + ACliente.Largura,
                       fora.bottom - fora.top - cliente.bottom + ACliente.Altura, SWP_NOZORDER);
    }
    std::vector<TVisto> Ver(const TFormulario& AFormulario) override {
        const HWND janela = Janela(AFormulario);
        RECT cliente{};
        ::GetClientRect(janela, &cliente);
        std::vector<TVisto> vistos{
            {{0, 0, static_cast<int>(cliente.right), static_cast<int>(cliente.bottom)}, Texto(janela)}};
        const auto filhos = Filhos(janela);
        std::size_t proximo = 0;
        const auto estahMarcado = [](HWND AJanela) {
            return ::SendMessageW(AJanela, BM_GETCHECK, 0, 0) == BST_CHECKED;
        };
        for (const auto& controle : AFormulario.GetControles()) {
            const HWND filho = filhos.at(proximo++);
            vistos.push_back({Retangulo(filho), Texto(filho), ::IsWindowVisible(filho) != 0,
                              ::IsWindowEnabled(filho) != 0, ::GetFocus() == filho});
            TVisto& visto = vistos.back();
            if (controle->GetTipo() == tcCaixaChecagem) visto.Marcado = estahMarcado(filho);
            if (controle->GetTipo() == tcMemorando)
                visto.Marcado = (::GetWindowLongPtrW(filho, GWL_STYLE) & ES_READONLY) != 0;
            if (controle->GetTipo() != tcGrupoOpcoes) continue;
            // Its options come right after their group in tab order.
            for (std::size_t i = 0; i < static_cast<TGrupoOpcoes&>(*controle).GetItens().size(); ++i) {
                const HWND opcao = filhos.at(proximo++);
                visto.Opcoes.push_back(Retangulo(opcao));
                visto.TextoDasOpcoes += Texto(opcao) + u"\n";
                if (estahMarcado(opcao)) visto.Escolhida = static_cast<int>(i);
            }
        }
        EXPECT_EQ(proximo, filhos.size());
        return vistos;
    }

    TVisao Medir() override;
    bool ClicarSeHouver(std::u16string_view ACaption) override {
        if (!BuscarFilho(ACaption)) return false;
        Clicar(ACaption);
        return true;
    }
    std::vector<TRetangulo> BuscarTelas() override {
        std::vector<TRetangulo> areas;
        for (const TTelaWin32& tela : CTelas) areas.push_back(tela.AreaDeTrabalho);
        return areas;
    }
    void AbrirEm(std::size_t ATela) override { FTela = CTelas[ATela]; }
    void ArrastarPara(std::size_t ATela) override {
        FTela = CTelas[ATela];
        ::SendMessageW(BuscarFormulario(), WM_EXITSIZEMOVE, 0, 0);
    }

    /// The control of the active window with that text.
    static HWND BuscarFilho(std::u16string_view ATexto) {
        return ::FindWindowExW(::GetActiveWindow(), nullptr, nullptr, Interno::ParaWide(std::u16string(ATexto)));
    }
    static HWND BuscarFormulario() { return ::FindWindowW(L"TOryFormulario", nullptr); }
    static HWND Janela(const TFormulario& AFormulario) {
        return ::FindWindowW(L"TOryFormulario", Interno::ParaWide(AFormulario.GetTitulo()));
    }
    /// The windows on the form, in tab order.
    static std::vector<HWND> Filhos(HWND AJanela) {
        std::vector<HWND> filhos;
        for (HWND filho = ::GetWindow(AJanela, GW_CHILD); filho; filho = ::GetWindow(filho, GW_HWNDNEXT))
            filhos.push_back(filho);
        return filhos;
    }
    static std::u16string Texto(HWND AJanela) {
        std::wstring texto(static_cast<std::size_t>(::GetWindowTextLengthW(AJanela)) + 1, L'\0');
        texto.resize(static_cast<std::size_t>(::GetWindowTextW(AJanela, texto.data(), static_cast<int>(texto.size()))));
        return Interno::DeWide(texto);
    }
    static TRetangulo Retangulo(HWND AJanela) {
        RECT r{};
        ::GetWindowRect(AJanela, &r);
        ::MapWindowPoints(nullptr, ::GetParent(AJanela), reinterpret_cast<POINT*>(&r), 2);
        return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right - r.left),
                static_cast<int>(r.bottom - r.top)};
    }

    /// A key pressed where the focus is.
    static void Tecla(WPARAM ATecla) { ::PostMessageW(::GetFocus(), WM_KEYDOWN, ATecla, 1); }
    static void Escrever(const wchar_t* ATexto) {
        for (; *ATexto; ++ATexto) ::PostMessageW(::GetFocus(), WM_CHAR, *ATexto, 1);
    }
    static bool EhBotao(HWND AJanela) { return BuscarClasse(AJanela) == L"Button"; }
    static bool EhLista(HWND AJanela) { return BuscarClasse(AJanela) == L"ListBox"; }
    static std::wstring BuscarClasse(HWND AJanela) {
        wchar_t classe[32]{};
        ::GetClassNameW(AJanela, classe, 32);
        return classe;
    }
    static void SoltarTeclas() {
        Digitar(VK_CONTROL, false);
        Digitar(VK_SHIFT, false);
    }
    /// Holds a key down, or lets it go, for the keys that follow.
    static void Digitar(int ATecla, bool APressionada) {
        BYTE teclado[256];
        ::GetKeyboardState(teclado);
        teclado[ATecla] = APressionada ? 0x80 : 0;
        ::SetKeyboardState(teclado);
    }

    /// A system has one scale and one screen while a test runs, so the toolkit is told of others.
    static const std::vector<TTelaWin32> CTelas;
    std::optional<TTelaWin32> FTela;
    TToolkitWin32 FToolkit;

private:
    TTelaWin32 BuscarTela(void* AJanela) const;
};

class FormsWin32 : public testing::Test, public TUsuarioWin32 {
protected:
    void SetUp() override {
        if (!TToolkitWin32::HaAreaDeTrabalho()) GTEST_SKIP() << "no window can be created here: run under a display";
    }
};

/// A control of ATipo at a place of its own.
template <typename T>
T& Por(TFormulario& AFormulario, std::u16string_view ATexto, const TRetangulo& ARetangulo) {
    T& controle = AFormulario.Adicionar<T>();
    controle.SetTexto(ATexto);
    controle.SetRetangulo(ARetangulo);
    return controle;
}

}  // namespace OryUtils
