// What the toolkit gives besides forms: the system's pickers, the cursor, the keyboard.
#include "Auxiliares.hpp"

#include <filesystem>
#include <fstream>
#include <optional>

namespace OryUtils {
namespace {

// Where the file picker takes a name: a box, or a list with one.
constexpr int CCaixasDoNome[] = {0x480, 0x47C};

/// A folder of the test's own, with a file in it.
class TPastaTemporaria {
public:
    TPastaTemporaria() { std::ofstream(FPasta / L"nota.txt") << "1"; }
    ~TPastaTemporaria() { std::filesystem::remove_all(FPasta); }
    TPastaTemporaria(const TPastaTemporaria&) = delete;
    TPastaTemporaria& operator=(const TPastaTemporaria&) = delete;
    std::u16string GetCaminho() const { return FPasta.u16string(); }

private:
    static std::filesystem::path Criar() {
        auto pasta =
            std::filesystem::temp_directory_path() / (L"ory-seletor-" + std::to_wstring(::GetCurrentProcessId()));
        std::filesystem::create_directories(pasta);
        return pasta;
    }
    std::filesystem::path FPasta = Criar();
};

/// The picker of this thread that is shown.
HWND BuscarSeletor() {
    HWND seletor = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND AJanela, LPARAM ADestino) -> BOOL {
            wchar_t classe[16]{};
            ::GetClassNameW(AJanela, classe, 16);
            if (std::wstring_view(classe) != L"#32770" || !::IsWindowVisible(AJanela)) return TRUE;
            *reinterpret_cast<HWND*>(ADestino) = AJanela;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&seletor));
    return seletor;
}

class SeletoresWin32 : public FormsWin32 {
protected:
    /// Opens a picker by AAbrir and does AAcao to it.
    std::optional<std::u16string> Responder(const std::function<void(HWND)>& AAcao,
                                            const std::function<std::optional<std::u16string>()>& AAbrir) {
        return Conduzir(
            {[&] { AAcao(BuscarSeletor()); }}, [] { return BuscarSeletor() != nullptr; },
            [] { ::PostMessageW(BuscarSeletor(), WM_COMMAND, IDCANCEL, 0); }, AAbrir);
    }
};

TEST_F(SeletoresWin32, ArquivoEscolhidoOuCancelado) {
    const TPastaTemporaria pasta;
    const auto abrir = [&] {
        return FToolkit.EscolherArquivo(pasta.GetCaminho(), {{u"Textos", u"*.txt;*.csv"}, {u"Todos", u"*.*"}});
    };
    const auto comando = [](WPARAM AId) { return [=](HWND AJanela) { ::PostMessageW(AJanela, WM_COMMAND, AId, 0); }; };
    EXPECT_EQ(Responder(comando(IDCANCEL), abrir), std::nullopt);
    EXPECT_EQ(Responder([](HWND AJanela) { ::PostMessageW(AJanela, WM_CLOSE, 0, 0); }, abrir), std::nullopt);
    const auto escolhido = Responder(
        [&](HWND AJanela) {
            for (const int caixa : CCaixasDoNome) ::SetDlgItemTextW(AJanela, caixa, L"nota.txt");
            comando(IDOK)(AJanela);
        },
        abrir);
    ASSERT_TRUE(escolhido);
    EXPECT_TRUE(std::filesystem::equivalent(*escolhido, pasta.GetCaminho() + u"/nota.txt"))
        << std::filesystem::path(*escolhido);
}

TEST_F(SeletoresWin32, PastaEscolhidaOuCancelada) {
    const TPastaTemporaria pasta;
    const auto abrir = [&] { return FToolkit.EscolherPasta(u"Onde gravar", pasta.GetCaminho()); };
    std::u16string titulo;
    const auto responder = [&](WPARAM AId) {
        return Responder(
            [&](HWND AJanela) {
                titulo = Texto(AJanela);
                ::PostMessageW(AJanela, WM_COMMAND, AId, 0);
            },
            abrir);
    };
    EXPECT_EQ(responder(IDCANCEL), std::nullopt);
    EXPECT_EQ(titulo, u"Onde gravar");
    const auto escolhida = responder(IDOK);
    ASSERT_TRUE(escolhida);
    EXPECT_TRUE(std::filesystem::equivalent(*escolhida, pasta.GetCaminho())) << std::filesystem::path(*escolhida);
}

TEST_F(FormsWin32, AAmpulhetaValeParaTodosOsFormularios) {
    const auto cursor = [](WORD ANumero) { return ::LoadCursorW(nullptr, MAKEINTRESOURCEW(ANumero)); };
    constexpr WORD CSeta = 32512, CAmpulheta = 32514;
    TFormulario formulario;
    formulario.SetTitulo(u"Cursor");
    PorBotao(formulario, u"OK", mrOk);
    Executar(formulario, {[&] {
                 const HWND janela = Janela(formulario);
                 // The mouse moves over the form.
                 const auto mover = [&] {
                     ::SendMessageW(janela, WM_SETCURSOR, reinterpret_cast<WPARAM>(janela),
                                    MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
                     return ::GetCursor();
                 };
                 FToolkit.SetCursor(ctAmpulheta);
                 EXPECT_EQ(::GetCursor(), cursor(CAmpulheta)) << "at once";
                 EXPECT_EQ(mover(), cursor(CAmpulheta)) << "and as the mouse moves";
                 FToolkit.Bipar();
                 EXPECT_EQ(mover(), cursor(CAmpulheta));
                 FToolkit.SetCursor(ctNormal);
                 EXPECT_EQ(::GetCursor(), cursor(CSeta));
                 EXPECT_EQ(mover(), cursor(CSeta));
                 formulario.Fechar();
             }});
}

TEST_F(FormsWin32, TeclaPressionadaAgora) {
    const auto mover = [](DWORD AComo) {
        INPUT tecla{};
        tecla.type = INPUT_KEYBOARD;
        tecla.ki.wVk = VK_SHIFT;
        tecla.ki.dwFlags = AComo;
        return ::SendInput(1, &tecla, sizeof tecla);
    };
    EXPECT_FALSE(FToolkit.EstahPressionada(VK_SHIFT));
    ASSERT_EQ(mover(0), 1U);
    EXPECT_TRUE(FToolkit.EstahPressionada(VK_SHIFT));
    EXPECT_FALSE(FToolkit.EstahPressionada(VK_CONTROL));
    mover(KEYEVENTF_KEYUP);
    EXPECT_FALSE(FToolkit.EstahPressionada(VK_SHIFT));
}

}  // namespace
}  // namespace OryUtils
