// Modal runs: other windows, nesting, exceptions, timers, what is left behind.
#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "Auxiliares.hpp"

#include <commctrl.h>
#include <set>

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

TEST_F(FormsWin32, ABarraDeUmaParteDesconhecidaAnda) {
    TFormulario formulario;
    auto& barra = formulario.Adicionar<TProgresso>();
    barra.SetRetangulo({10, 10, 200, 16});
    const auto exibicao = FToolkit.Exibir(formulario);
    const HWND janela = Filhos(BuscarFormulario()).front();
    // Where the block begins.
    const auto verBloco = [&] {
        const HDC tela = ::GetDC(janela);
        int x = 0;
        while (x < 200 && ::GetPixel(tela, x, 8) != ::GetSysColor(COLOR_HIGHLIGHT)) ++x;
        ::ReleaseDC(janela, tela);
        return x;
    };
    std::set<int> lugares;
    for (const DWORD fim = ::GetTickCount() + 5000; lugares.size() < 4 && ::GetTickCount() < fim; ::Sleep(20)) {
        FToolkit.ProcessarMensagens();
        if (const int x = verBloco(); x < 200) lugares.insert(x);
    }
    EXPECT_EQ(lugares.size(), 4U);
    barra.SetPercentual(25);
    FToolkit.ProcessarMensagens();
    EXPECT_EQ(::SendMessageW(janela, PBM_GETPOS, 0, 0), 250);
}

TEST_F(FormsWin32, UmaJanelaPedidaEhADonaEOFormularioFicaNaFrente) {
    const THospede dona;
    ::ShowWindow(dona.Janela, SW_HIDE);  // neither active nor visible: nothing but the request leads to it
    EXPECT_EQ(FToolkit.SetJanelaDona(0x7FFFFFF0), atNaoExiste);
    for (const bool pedida : {true, false}) {
        EXPECT_EQ(FToolkit.SetJanelaDona(pedida ? reinterpret_cast<std::uintptr_t>(dona.CaixaA) : 0), atFeito);
        EXPECT_EQ(FToolkit.SetNaFrente(pedida), atFeito);
        TFormularioCompleto f;
        const auto conferir = [&] {
            EXPECT_EQ(::GetWindow(Janela(f), GW_OWNER) == dona.Janela, pedida);
            EXPECT_EQ((::GetWindowLongPtrW(Janela(f), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0, pedida);
            Clicar(u"&Sim");
        };
        EXPECT_EQ(Executar(f, {conferir}), mrYes);
    }
}

TEST_F(FormsWin32, AsOutrasJanelasEsperamEOFocoVolta) {
    const THospede hospede, desabilitada;
    ::EnableWindow(desabilitada.Janela, FALSE);
    ::SetActiveWindow(hospede.Janela);
    ::SetFocus(hospede.CaixaB);
    TFormularioCompleto fora(u"Fora"), dentro(u"Dentro");
    const auto passosDentro = [&] {
        EXPECT_EQ(::GetWindow(Janela(dentro), GW_OWNER), Janela(fora));
        EXPECT_FALSE(::IsWindowEnabled(Janela(fora)));
        Clicar(u"&Não");
    };
    const auto passosFora = [&] {
        EXPECT_EQ(::GetWindow(Janela(fora), GW_OWNER), hospede.Janela);
        EXPECT_FALSE(::IsWindowEnabled(hospede.Janela));
        const HWND foco = ::GetFocus();
        EXPECT_EQ(Executar(dentro, {passosDentro}), mrNo);
        EXPECT_TRUE(::IsWindowEnabled(Janela(fora)));
        EXPECT_FALSE(::IsWindowEnabled(hospede.Janela)) << "the outer form still runs";
        EXPECT_EQ(::GetFocus(), foco);
        Clicar(u"&Sim");
    };
    EXPECT_EQ(Executar(fora, {passosFora}), mrYes);
    EXPECT_TRUE(::IsWindowEnabled(hospede.Janela));
    EXPECT_FALSE(::IsWindowEnabled(desabilitada.Janela)) << "what was disabled before stays so";
    EXPECT_EQ(::GetFocus(), hospede.CaixaB);
    EXPECT_FALSE(HaFormulario());
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

TEST_F(FormsWin32, ProcessarMensagensVoltaQuandoCadaMensagemTrazOutra) {
    constexpr int CMuitas = 10'000;
    static int restam;
    restam = CMuitas;
    const THospede hospede;
    ::SetWindowLongPtrW(hospede.Janela, GWLP_WNDPROC,
                        reinterpret_cast<LONG_PTR>(+[](HWND AJanela, UINT AMensagem, WPARAM A, LPARAM B) -> LRESULT {
                            if (AMensagem == WM_APP && --restam > 0) ::PostMessageW(AJanela, WM_APP, 0, 0);
                            return ::DefWindowProcW(AJanela, AMensagem, A, B);
                        }));
    ::PostMessageW(hospede.Janela, WM_APP, 0, 0);
    FToolkit.ProcessarMensagens();
    EXPECT_LT(restam, CMuitas) << "the first ones are processed";
    EXPECT_GT(restam, 0) << "who waits is called again";
    while (restam > 0) FToolkit.ProcessarMensagens();
}

TEST_F(FormsWin32, OFimDoProgramaEncerraTodosOsLacos) {
    TFormularioCompleto fora(u"Fora"), dentro(u"Dentro");
    int resultadoDentro = -1;
    EXPECT_EQ(Executar(fora, {[&] { resultadoDentro = Executar(dentro, {[] { ::PostQuitMessage(3); }}); }}), mrCancel);
    EXPECT_EQ(resultadoDentro, mrCancel);
    MSG mensagem{};
    ASSERT_TRUE(::PeekMessageW(&mensagem, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(mensagem.wParam, 3u);
}

TEST_F(FormsWin32, ADonaDestruidaLevaOFormularioJunto) {
    auto hospede = std::make_unique<THospede>();
    TFormularioCompleto formulario;
    EXPECT_EQ(Executar(formulario, {[] { Escrever(L"lido"); }, [&] { hospede.reset(); }}), mrCancel);
    EXPECT_EQ(formulario.Edicao.GetTexto(), u"lido");
}

TEST_F(FormsWin32, OsTestesEstaoNaThreadQueCarregouAInterface) {
    EXPECT_EQ(TToolkitWin32::GetThreadDeCarga(), ::GetCurrentThreadId());
}

}  // namespace
}  // namespace OryUtils
