// What the toolkit gives besides forms: the system's pickers, the clipboard, the cursor, the keyboard.
#include "oryutils/forms/win32/interno/Seletores.hpp"

#include "Auxiliares.hpp"

#include <filesystem>
#include <fstream>
#include <optional>

namespace OryUtils {
namespace {

// Where the file picker takes a name: a box, or a list with one.
constexpr int CCaixasDoNome[] = {0x480, 0x47C};

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

TEST_F(FormsWin32, ArquivoOuPastaEscolhidosOuCancelados) {
    using TEscolha = std::optional<std::u16string>;
    const auto pasta =
        std::filesystem::temp_directory_path() / ("ory-seletor-" + std::to_string(::GetCurrentProcessId()));
    std::filesystem::create_directories(pasta);
    std::ofstream(pasta / "nota.txt") << "1";
    const std::function<TEscolha()> arquivo = [&] {
        return FToolkit.EscolherArquivo(pasta.u16string(), {{u"Textos", u"*.txt;*.csv"}, {u"Todos", u"*.*"}});
    };
    const std::function<TEscolha()> soPasta = [&] { return FToolkit.EscolherPasta(u"Onde gravar", pasta.u16string()); };
    const struct {
        const std::function<TEscolha()>& Abrir;
        UINT Mensagem;
        WPARAM Botao;
        std::filesystem::path Esperado;
    } casos[] = {{arquivo, WM_COMMAND, IDCANCEL, {}},
                 {arquivo, WM_CLOSE, 0, {}},
                 {arquivo, WM_COMMAND, IDOK, pasta / "nota.txt"},
                 {soPasta, WM_COMMAND, IDCANCEL, {}},
                 {soPasta, WM_COMMAND, IDOK, pasta}};
    for (const auto& c : casos) {
        std::u16string titulo;
        const auto responder = [&] {
            const HWND seletor = BuscarSeletor();
            titulo = Texto(seletor);
            for (const int caixa : CCaixasDoNome) ::SetDlgItemTextW(seletor, caixa, L"nota.txt");
            ::PostMessageW(seletor, c.Mensagem, c.Botao, 0);
        };
        const TEscolha escolha = Conduzir(
            {responder}, [] { return BuscarSeletor() != nullptr; },
            [] { ::PostMessageW(BuscarSeletor(), WM_COMMAND, IDCANCEL, 0); }, c.Abrir);
        EXPECT_EQ(titulo == u"Onde gravar", &c.Abrir == &soPasta);
        EXPECT_EQ(escolha.has_value(), !c.Esperado.empty());
        EXPECT_TRUE(!escolha || std::filesystem::equivalent(*escolha, c.Esperado)) << c.Esperado;
    }
    std::filesystem::remove_all(pasta);
}

TEST_F(FormsWin32, FiltroDoSeletorDeArquivos) {
    const std::vector<TFiltroArquivo> filtros{{u"Textos", u"*.txt;*.csv"}, {u"Todos", u"*.*"}};
    EXPECT_EQ(Interno::MontarFiltro(filtros), std::u16string(u"Textos\0*.txt;*.csv\0Todos\0*.*\0\0", 30));
    EXPECT_EQ(Interno::MontarFiltro({}), std::u16string(1, u'\0'));
}

TEST_F(FormsWin32, AreaDeTransferencia) {
    FToolkit.CopiarParaAreaDeTransferencia(u"copiado: ação\n\U0001F600");
    EXPECT_EQ(LerAreaDeTransferencia(), u"copiado: ação\r\n\U0001F600");
}

TEST_F(FormsWin32, AAmpulhetaValeParaTodosOsFormularios) {
    const HCURSOR seta = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
    const HCURSOR ampulheta = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32514));
    TFormularioCompleto formulario;
    Executar(formulario, {[&] {
                 const HWND janela = Janela(formulario);
                 // The mouse moves over the form.
                 const auto mover = [&] {
                     ::SendMessageW(janela, WM_SETCURSOR, reinterpret_cast<WPARAM>(janela),
                                    MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
                     return ::GetCursor();
                 };
                 FToolkit.SetCursor(ctAmpulheta);
                 EXPECT_EQ(::GetCursor(), ampulheta) << "at once";
                 FToolkit.Bipar();
                 EXPECT_EQ(mover(), ampulheta) << "and as the mouse moves";
                 FToolkit.SetCursor(ctNormal);
                 EXPECT_EQ(::GetCursor(), seta);
                 EXPECT_EQ(mover(), seta);
                 formulario.Fechar();
             }});
}

TEST_F(FormsWin32, TeclaPressionadaAgora) {
    for (const DWORD como : {DWORD{KEYEVENTF_KEYUP}, DWORD{0}, DWORD{KEYEVENTF_KEYUP}}) {
        INPUT tecla{};
        tecla.type = INPUT_KEYBOARD;
        tecla.ki.wVk = VK_SHIFT;
        tecla.ki.dwFlags = como;
        ASSERT_EQ(::SendInput(1, &tecla, sizeof tecla), 1U);
        EXPECT_EQ(FToolkit.EstahPressionada(VK_SHIFT), como == 0);
        EXPECT_FALSE(FToolkit.EstahPressionada(VK_CONTROL));
    }
}

}  // namespace
}  // namespace OryUtils
