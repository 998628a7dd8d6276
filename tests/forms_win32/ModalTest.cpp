// Modal runs: other windows, nesting, exceptions, timers, what is left behind.
#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/forms/win32/interno/Seletores.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "Auxiliares.hpp"
#include "resistencia/Dialogos.hpp"
#include "resistencia/Quantidade.hpp"

#include <thread>

namespace OryUtils {
namespace {

/// A window of the host, with two boxes.
class THospede {
public:
    THospede()
        : Janela(::CreateWindowExW(0, L"STATIC", L"Hospedeiro", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200,
                                   nullptr, nullptr, nullptr, nullptr)),
          CaixaA(Criar(10)),
          CaixaB(Criar(50)) {
        ::SetActiveWindow(Janela);
    }
    ~THospede() { ::DestroyWindow(Janela); }
    THospede(const THospede&) = delete;
    THospede& operator=(const THospede&) = delete;

    HWND Janela, CaixaA, CaixaB;

private:
    HWND Criar(int ATopo) const {
        return ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE, 10, ATopo, 100, 22, Janela, nullptr, nullptr,
                                 nullptr);
    }
};

TEST_F(FormsWin32, AsOutrasJanelasEsperamEOFocoVolta) {
    const THospede hospede, desabilitada;
    ::EnableWindow(desabilitada.Janela, FALSE);
    ::SetActiveWindow(hospede.Janela);
    ::SetFocus(hospede.CaixaB);
    TFormulario fora, dentro;
    fora.SetTitulo(u"Fora");
    dentro.SetTitulo(u"Dentro");
    PorBotao(fora, u"OK", mrOk);
    PorBotao(dentro, u"OK", mrYes);
    const int resultado = Executar(fora, {[&] {
                                       const HWND janela = Janela(fora);
                                       EXPECT_EQ(::GetWindow(janela, GW_OWNER), hospede.Janela);
                                       EXPECT_FALSE(::IsWindowEnabled(hospede.Janela));
                                       const HWND foco = ::GetFocus();
                                       EXPECT_EQ(Executar(dentro, {[&] {
                                                              EXPECT_EQ(::GetWindow(Janela(dentro), GW_OWNER), janela);
                                                              EXPECT_FALSE(::IsWindowEnabled(janela));
                                                              Clicar(Filhos(Janela(dentro))[0]);
                                                          }}),
                                                 mrYes);
                                       EXPECT_TRUE(::IsWindowEnabled(janela));
                                       EXPECT_FALSE(::IsWindowEnabled(hospede.Janela)) << "the outer form still runs";
                                       EXPECT_EQ(::GetFocus(), foco);
                                       Clicar(Filhos(janela)[0]);
                                   }});
    EXPECT_EQ(resultado, mrOk);
    EXPECT_TRUE(::IsWindowEnabled(hospede.Janela));
    EXPECT_FALSE(::IsWindowEnabled(desabilitada.Janela)) << "what was disabled before stays so";
    EXPECT_EQ(::GetFocus(), hospede.CaixaB);
    EXPECT_EQ(::FindWindowW(L"TOryFormulario", nullptr), nullptr);
}

TEST_F(FormsWin32, OAdaptadorEhOControleNativo) {
    const THospede hospede;
    TControleWin32 a(hospede.CaixaA), outroA(hospede.CaixaA), b(hospede.CaixaB), nulo(nullptr);
    EXPECT_TRUE(EhMesmoControle(&a, &outroA));
    EXPECT_FALSE(EhMesmoControle(&a, &b));
    EXPECT_FALSE(nulo.PodeReceberFoco());
    for (TControleWin32* controle : {&a, &b}) {
        ASSERT_TRUE(controle->PodeReceberFoco());
        controle->ReceberFoco();
        EXPECT_EQ(::GetFocus(), controle->GetHandle());
    }
    struct TCaso {
        HWND Janela;
        bool Oculta;
        const char* Porque;
    };
    for (const TCaso& c : {TCaso{hospede.CaixaA, false, "disabled"},
                           {hospede.CaixaA, true, "hidden"},
                           {hospede.Janela, false, "parent disabled"},
                           {hospede.Janela, true, "parent hidden"}}) {
        c.Oculta ? ::ShowWindow(c.Janela, SW_HIDE) : ::EnableWindow(c.Janela, FALSE);
        EXPECT_FALSE(a.PodeReceberFoco()) << c.Porque;
        c.Oculta ? ::ShowWindow(c.Janela, SW_SHOW) : ::EnableWindow(c.Janela, TRUE);
        EXPECT_TRUE(a.PodeReceberFoco()) << c.Porque;
    }
    ::DestroyWindow(hospede.CaixaB);
    EXPECT_FALSE(b.PodeReceberFoco());
}

TEST_F(FormsWin32, ProcessarMensagensEntregaOQueEspera) {
    const THospede hospede;
    ::PostMessageW(hospede.CaixaA, WM_CHAR, L'z', 1);
    FToolkit.ProcessarMensagens();
    EXPECT_EQ(Texto(hospede.CaixaA), u"z");
    ::PostQuitMessage(7);
    FToolkit.ProcessarMensagens();
    MSG mensagem{};
    ASSERT_TRUE(::PeekMessageW(&mensagem, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "left for the host's own loop";
    EXPECT_EQ(mensagem.wParam, 7u);
}

TEST_F(FormsWin32, OFimDoProgramaEncerraTodosOsLacos) {
    TFormulario fora, dentro;
    fora.SetTitulo(u"Fora");
    dentro.SetTitulo(u"Dentro");
    int resultadoDentro = -1;
    EXPECT_EQ(Executar(fora, {[&] { resultadoDentro = Executar(dentro, {[] { ::PostQuitMessage(3); }}); }}), mrCancel);
    EXPECT_EQ(resultadoDentro, mrCancel);
    MSG mensagem{};
    ASSERT_TRUE(::PeekMessageW(&mensagem, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(mensagem.wParam, 3u);
}

TEST_F(FormsWin32, ADonaDestruidaLevaOFormularioJunto) {
    auto hospede = std::make_unique<THospede>();
    TFormulario formulario;
    formulario.SetTitulo(u"Órfão");
    auto& caixa = Por<TCaixaEdicao>(formulario, u"", {0, 0, 100, 22});
    EXPECT_EQ(Executar(formulario, {[] { Escrever(L"lido"); }, [&] { hospede.reset(); }}), mrCancel);
    EXPECT_EQ(caixa.GetTexto(), u"lido");
}

TEST_F(FormsWin32, SoAThreadDaInterfaceMostra) {
    EXPECT_TRUE(FToolkit.EhThreadDaInterface());
    std::thread([&] {
        EXPECT_FALSE(FToolkit.EhThreadDaInterface());
        EXPECT_THROW(TFormulario().ExecutarModal(), Exception);
    }).join();
    EXPECT_EQ(TToolkitWin32::GetThreadDeCarga(), ::GetCurrentThreadId()) << "the tests run on the main thread";
}

TEST_F(FormsWin32, MilFormulariosNaoDeixamNada) {
    const auto mostrar = [&] {
        TFormularioCompleto formulario;
        TAcao fechar([&] { formulario.Fechar(); });
        formulario.OnShow = fechar.Evento();
        formulario.ExecutarModal();
    };
    mostrar();
    const Testes::TRecursos antes = Testes::BuscarRecursos();
    for (int i = 0; i < 1000; ++i) mostrar();
    Testes::ExigirSemCrescimento(antes, "a thousand forms");
}

TEST_F(FormsWin32, MuitosDialogosNaoDeixamNada) {
    TOryUtilsDialogs dialogos;
    bool confirmar = false;
    const auto respondente = FToolkit.LigarTemporizador(1, [&] {
        const HWND janela = ::FindWindowW(L"TOryFormulario", nullptr);
        if (!janela || !::IsWindowVisible(janela)) return;
        if (confirmar)
            Tecla(VK_RETURN);
        else
            ::PostMessageW(janela, WM_CLOSE, 0, 0);
    });
    Testes::MostrarSemCrescimento(Testes::QuantidadeDeDialogos(40, 10'000), [&](int AVez) {
        confirmar = AVez % 2 == 0;
        Testes::MostrarDialogo(dialogos, AVez, confirmar);
    });
    FToolkit.DesligarTemporizador(respondente);
}

TEST_F(FormsWin32, FiltroDoSeletorDeArquivos) {
    const std::vector<TFiltroArquivo> filtros{{u"Textos", u"*.txt;*.csv"}, {u"Todos", u"*.*"}};
    EXPECT_EQ(Interno::MontarFiltro(filtros), std::u16string(u"Textos\0*.txt;*.csv\0Todos\0*.*\0\0", 30));
    EXPECT_EQ(Interno::MontarFiltro({}), std::u16string(1, u'\0'));
}

}  // namespace
}  // namespace OryUtils
