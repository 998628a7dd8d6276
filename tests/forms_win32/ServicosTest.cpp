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

TEST_F(FormsWin32, VariosArquivosEArquivoParaSalvar) {
    const auto pasta =
        std::filesystem::temp_directory_path() / ("ory-seletor2-" + std::to_string(::GetCurrentProcessId()));
    std::filesystem::create_directories(pasta);
    for (const char* nome : {"a.txt", "b.txt"}) std::ofstream(pasta / nome) << "1";
    const struct {
        TSelecaoDeCaminho Selecao;
        const wchar_t* Digitado;  ///< null: what is suggested
        int Substituir;           ///< the answer, where that is asked
        std::string Esperado;
    } casos[] = {{scAbrirVarios, L"\"a.txt\" \"b.txt\"", 0, "a.txt b.txt"},
                 {scAbrirVarios, L"b.txt", 0, "b.txt"},
                 {scSalvar, nullptr, 0, "nota.txt"},
                 {scSalvar, L"nova", 0, "nova.txt"},
                 {scSalvar, L"a.txt", IDNO, ""},
                 {scSalvar, L"a", IDYES, "a.txt"}};
    for (const auto& c : casos) {
        bool perguntou = false;
        const auto confirmar = [&](HWND ASeletor) {
            if (c.Digitado)
                for (const int caixa : CCaixasDoNome) ::SetDlgItemTextW(ASeletor, caixa, c.Digitado);
            ::PostMessageW(ASeletor, WM_COMMAND, IDOK, 0);
        };
        HWND seletor = nullptr;
        // The question is a window in front of the picker; after a "no" the picker is given up.
        const auto olhar = FToolkit.LigarTemporizador(20, [&] {
            const HWND frente = BuscarSeletor();
            if (!frente) return;
            if (!seletor) return confirmar(seletor = frente);
            if (frente != seletor && !perguntou && c.Substituir) {
                perguntou = true;
                ::PostMessageW(frente, WM_COMMAND, static_cast<WPARAM>(c.Substituir), 0);
            } else if (frente == seletor && perguntou && c.Substituir == IDNO) {
                ::PostMessageW(seletor, WM_COMMAND, IDCANCEL, 0);
            }
        });
        const auto caminhos = FToolkit.EscolherCaminhos({.Selecao = c.Selecao,
                                                         .Titulo = u"Título",
                                                         .PastaInicial = pasta.u16string(),
                                                         .NomeSugerido = u"nota.txt",
                                                         .ExtensaoPadrao = u"txt",
                                                         .Filtros = {{u"Todos", u"*.*"}}});
        FToolkit.DesligarTemporizador(olhar);
        std::string escolhidos;
        for (const auto& caminho : caminhos) {
            EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::path(caminho).parent_path(), pasta));
            escolhidos += (escolhidos.empty() ? "" : " ") + std::filesystem::path(caminho).filename().string();
        }
        EXPECT_EQ(escolhidos, c.Esperado);
        EXPECT_EQ(perguntou, c.Substituir != 0) << c.Esperado;
    }
    std::filesystem::remove_all(pasta);
}

TEST_F(FormsWin32, OQueOSistemaDizDosEscolhidos) {
    using TLista = std::vector<std::u16string>;
    const auto ler = [](std::u16string_view ADados) { return Interno::LerEscolhidos(ADados); };
    EXPECT_EQ(ler({u"C:\\x\\a.txt\0\0\0", 12}), TLista{u"C:\\x\\a.txt"});
    EXPECT_EQ(ler({u"C:\\x\0a\0b c\0\0lixo", 16}), (TLista{u"C:\\x\\a", u"C:\\x\\b c"}));
    EXPECT_EQ(ler({u"C:\\\0a\0b\0", 8}), (TLista{u"C:\\a", u"C:\\b"})) << "a root; no NUL more behind";
    EXPECT_EQ(ler({u"\0", 1}), TLista{});
}

TEST_F(FormsWin32, FiltroDoSeletorDeArquivos) {
    const std::vector<TFiltroArquivo> filtros{{u"Textos", u"*.txt;*.csv"}, {u"Todos", u"*.*"}};
    EXPECT_EQ(Interno::MontarFiltro(filtros), std::u16string(u"Textos\0*.txt;*.csv\0Todos\0*.*\0\0", 30));
    EXPECT_EQ(Interno::MontarFiltro({}), std::u16string(1, u'\0'));
}

// What the manifest of the project's programs asks for, and the system then grants.
TEST_F(FormsWin32, OManifestoValeParaEsteProcesso) {
    EXPECT_TRUE(::IsProcessDPIAware());
    ACTCTX_SECTION_KEYED_DATA controles{};
    controles.cbSize = sizeof controles;
    EXPECT_TRUE(
        ::FindActCtxSectionStringW(0, nullptr, ACTIVATION_CONTEXT_SECTION_DLL_REDIRECTION, L"comctl32.dll", &controles))
        << "controls of version 6";
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
