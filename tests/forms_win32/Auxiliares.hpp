#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/win32/ToolkitWin32.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include "forms/roteiros/Roteiros.hpp"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace OryUtils {

/// Binds a closure to an event.
class TAcao : public TObjeto {
public:
    explicit TAcao(std::function<void()> AAcao) : FAcao(std::move(AAcao)) {}
    void Rodar(TObjeto*) { FAcao(); }
    TEvento<TObjeto*> Evento() { return TEvento<TObjeto*>::De<&TAcao::Rodar>(*this); }

private:
    std::function<void()> FAcao;
};

/// Real windows, driven from a timer: the system delivers a timer's tick only when no other message waits, so each step
/// sees all effects of the one before it.
class FormsWin32 : public testing::Test, public TUsuario {
protected:
    void SetUp() override {
        if (!TToolkitWin32::HaAreaDeTrabalho()) GTEST_SKIP() << "no window can be created here: run under a display";
        InstalarToolkit(&FToolkit);
    }
    void TearDown() override {
        InstalarToolkit(nullptr);
        Digitar(VK_CONTROL, false);
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

    bool HaFormulario() override { return ::FindWindowW(L"TOryFormulario", nullptr) != nullptr; }
    void Teclar(std::uint16_t ATecla) override {
        Tecla(ATecla);
        if (ATecla == VK_SPACE) ::PostMessageW(::GetFocus(), WM_KEYUP, ATecla, 1);
    }
    void TeclarComAlt(char ALetra) override { AltTecla(static_cast<WPARAM>(ALetra)); }
    void Escrever(const char* ATexto) override {
        for (; *ATexto; ++ATexto) ::PostMessageW(::GetFocus(), WM_CHAR, static_cast<WPARAM>(*ATexto), 1);
    }
    void Clicar(std::u16string_view ACaption) override { Clicar(BuscarFilho(ACaption)); }
    void ClicarComMouse(std::u16string_view ACaption) override {
        const HWND janela = BuscarFilho(ACaption);
        ::PostMessageW(janela, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        ::PostMessageW(janela, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
    void FecharJanela() override { ::PostMessageW(::GetActiveWindow(), WM_SYSCOMMAND, SC_CLOSE, 0); }

    /// The control of the active window with that text.
    static HWND BuscarFilho(std::u16string_view ATexto) {
        return ::FindWindowExW(::GetActiveWindow(), nullptr, nullptr, Interno::ParaWide(std::u16string(ATexto)));
    }
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
    static void AltTecla(WPARAM ATecla) {
        constexpr LPARAM CAlt = 1 << 29;
        ::PostMessageW(::GetFocus(), WM_SYSKEYDOWN, ATecla, CAlt | 1);
    }
    static void Escrever(const wchar_t* ATexto) {
        for (; *ATexto; ++ATexto) ::PostMessageW(::GetFocus(), WM_CHAR, *ATexto, 1);
    }
    static void Clicar(HWND AJanela) { ::PostMessageW(AJanela, BM_CLICK, 0, 0); }
    /// Holds a key down, or lets it go, for the keys that follow.
    static void Digitar(int ATecla, bool APressionada) {
        BYTE teclado[256];
        ::GetKeyboardState(teclado);
        teclado[ATecla] = APressionada ? 0x80 : 0;
        ::SetKeyboardState(teclado);
    }

    TToolkitWin32 FToolkit;
};

/// A control of ATipo at a place of its own.
template <typename T>
T& Por(TFormulario& AFormulario, std::u16string_view ATexto, const TRetangulo& ARetangulo) {
    T& controle = AFormulario.Adicionar<T>();
    controle.SetTexto(ATexto);
    controle.SetRetangulo(ARetangulo);
    return controle;
}

inline TBotao& PorBotao(TFormulario& AFormulario, std::u16string_view ATexto, int AResultado, int ALeft = 0) {
    TBotao& botao = Por<TBotao>(AFormulario, ATexto, {ALeft, 160, 75, 25});
    botao.SetModalResult(AResultado);
    return botao;
}

}  // namespace OryUtils
