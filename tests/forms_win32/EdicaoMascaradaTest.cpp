// Real edit controls bound to fields.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "Auxiliares.hpp"
#include "forms/caixas/Caixas.hpp"
#include "resistencia/Quantidade.hpp"

#include <array>
#include <memory>
#include <optional>

namespace OryUtils {
namespace {

class TCaixasWin32 : public TCaixas {
public:
    TCaixasWin32(TToolkit& AToolkit, void (*ASegurar)(int, bool)) : FToolkit(AToolkit), FSegurar(ASegurar) {
        FJanela = CriarJanela();
        FOutra = CriarJanela();
        for (HWND& caixa : FCaixas) caixa = CriarCaixa(FJanela);
        FSolta = CriarCaixa(FJanela);
        FDaOutra = CriarCaixa(FOutra);
        Deixar();
    }
    ~TCaixasWin32() override {
        Desligar();
        ::DestroyWindow(FJanela);
        ::DestroyWindow(FOutra);
    }

    TEditorDeCampo& Ligar(std::size_t ACaixa, TField& ACampo) override {
        FEdicoes[ACaixa].reset();
        FEdicoes[ACaixa] = std::make_unique<TEdicaoMascaradaWin32>(FCaixas[ACaixa], ACampo);
        return *FEdicoes[ACaixa];
    }
    void Desligar() override {
        for (auto& edicao : FEdicoes) edicao.reset();
        Deixar();
        for (const HWND caixa : FCaixas) ::SetWindowTextW(caixa, L"");
    }
    std::u16string Texto(std::size_t ACaixa) override {
        std::wstring texto(static_cast<std::size_t>(::GetWindowTextLengthW(FCaixas[ACaixa])), L'\0');
        ::GetWindowTextW(FCaixas[ACaixa], texto.data(), static_cast<int>(texto.size()) + 1);
        return Interno::DeWide(texto);
    }
    void Entrar(std::size_t ACaixa) override { ::SetFocus(FCaixas[ACaixa]); }
    void Deixar() override { ::SetFocus(FSolta); }
    void IrEVoltar() override {
        const HWND foco = ::GetFocus();
        ::SetFocus(FDaOutra);
        ::SetFocus(foco);
    }
    void Digitar(std::u16string_view ATexto) override {
        for (const char16_t c : ATexto) ::SendMessageW(::GetFocus(), WM_CHAR, c, 1);
    }
    void Colar(std::u16string_view ATexto) override {
        FToolkit.CopiarParaAreaDeTransferencia(std::u16string(ATexto));
        ::SendMessageW(::GetFocus(), WM_PASTE, 0, 0);
    }
    void Teclar(TTeclaMascara ATecla) override {
        constexpr WPARAM CTeclas[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_BACK, VK_DELETE};  // as in TTeclaMascara
        ::SendMessageW(::GetFocus(), WM_KEYDOWN, CTeclas[ATecla], 1);
        if (ATecla == tmApagar) Digitar(u"\b");
    }
    void TeclarDecimal() override {
        ::SendMessageW(::GetFocus(), WM_KEYDOWN, VK_DECIMAL, 1);
        Digitar(u".");
    }
    void TeclarDesfazer() override {
        FSegurar(VK_CONTROL, true);
        ::SendMessageW(::GetFocus(), WM_KEYDOWN, 'Z', 1);
        Digitar(u"\u001A");
        FSegurar(VK_CONTROL, false);
    }
    void TeclarEsc() override {
        ::SendMessageW(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
        Digitar(u"\u001B");
    }
    void Selecionar(std::size_t AInicio, std::size_t AFim) override {
        ::SendMessageW(::GetFocus(), EM_SETSEL, AInicio, static_cast<LPARAM>(AFim));
    }
    void Escrever(std::size_t ACaixa, std::u16string_view ATexto) override {
        ::SetWindowTextW(FCaixas[ACaixa], Interno::ParaWide(std::u16string(ATexto)));
    }
    void TornarSomenteLeitura(std::size_t ACaixa, bool ASomenteLeitura) override {
        ::SendMessageW(FCaixas[ACaixa], EM_SETREADONLY, ASomenteLeitura, 0);
    }
    HWND GetCaixa(std::size_t ACaixa) const { return FCaixas[ACaixa]; }
    HWND GetJanela() const { return FJanela; }

private:
    static HWND CriarJanela() {
        return ::CreateWindowExW(0, L"STATIC", L"Caixas", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr,
                                 nullptr, nullptr, nullptr);
    }
    static HWND CriarCaixa(HWND AJanela) {
        return ::CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 0, 0, 200, 22, AJanela,
                                 nullptr, nullptr, nullptr);
    }

    TToolkit& FToolkit;
    void (*FSegurar)(int, bool);
    HWND FJanela = nullptr, FOutra = nullptr, FSolta = nullptr, FDaOutra = nullptr;
    std::array<HWND, CQuantas> FCaixas{};
    std::array<std::unique_ptr<TEdicaoMascaradaWin32>, CQuantas> FEdicoes;
};

class EdicaoWin32 : public FormsWin32 {
protected:
    void SetUp() override {
        FormsWin32::SetUp();
        GOryUtilsFormatacoes.Criar();
        if (!IsSkipped()) FCaixas.emplace(FToolkit, &FormsWin32::Digitar);
    }
    void TearDown() override {
        FCaixas.reset();
        GOryUtilsFormatacoes.Liberar();
        FormsWin32::TearDown();
    }

    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
    std::optional<TCaixasWin32> FCaixas;
};

TEST_F(EdicaoWin32, OQueValeEmQualquerCaixa) { ConferirCaixas(*FCaixas); }

TEST_F(EdicaoWin32, PassearSemDigitarNadaMuda) { PassearSemDigitar(*FCaixas, Testes::Quantidade(60, 1000)); }

TEST_F(EdicaoWin32, UmNumeroUmValor) { CompararGrafias(*FCaixas, Testes::Quantidade(60, 5000)); }

TEST_F(EdicaoWin32, RecortarEMenuDaCaixa) {
    TField cpf(ftString);
    FormatarCPF(cpf);
    TEditorDeCampo& editor = FCaixas->Ligar(0, cpf);
    const HWND caixa = FCaixas->GetCaixa(0);
    FCaixas->Entrar(0);
    EXPECT_EQ(::SendMessageW(caixa, EM_CANUNDO, 0, 0), FALSE);
    FCaixas->Digitar(u"52998224725");
    FCaixas->Selecionar(4, 7);
    ::SendMessageW(caixa, WM_CUT, 0, 0);
    EXPECT_EQ(FCaixas->Texto(0), u"529.   .247-25");
    FCaixas->Selecionar(12, 14);
    ::SendMessageW(caixa, WM_CLEAR, 0, 0);
    EXPECT_EQ(FCaixas->Texto(0), u"529.   .247-  ");
    FCaixas->Selecionar(0, 3);
    ::SendMessageW(caixa, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"111"));
    EXPECT_EQ(FCaixas->Texto(0), u"111.   .247-  ") << "as an input method does it";
    EXPECT_EQ(::SendMessageW(caixa, EM_CANUNDO, 0, 0), TRUE);
    EXPECT_EQ(::SendMessageW(caixa, EM_UNDO, 0, 0), TRUE);
    EXPECT_EQ(FCaixas->Texto(0), u"   .   .   -  ");
    EXPECT_FALSE(editor.EstahModificado());
    FCaixas->Desligar();
}

TEST_F(EdicaoWin32, ACaixaSeVaiEALigacaoFica) {
    TField cpf(ftString);
    FormatarCPF(cpf);
    TEditorDeCampo& editor = FCaixas->Ligar(0, cpf);
    ::DestroyWindow(FCaixas->GetCaixa(0));
    editor.Atualizar();
    cpf.SetValor(u"1");
    EXPECT_EQ(static_cast<TEdicaoMascaradaWin32&>(editor).GetHandle(), nullptr);
    FCaixas->Desligar();
}

TEST_F(EdicaoWin32, ValidacaoMoveOFocoAvisaEAborta) {
    static std::u16string aviso;
    static HWND foco;
    CosturaInterface().Alerta = [](std::u16string_view AMensagem) {
        aviso = AMensagem;
        foco = ::GetFocus();
    };
    using TRegra = void (*)(const TObjeto*, TWinControl*, std::u16string_view, std::u16string_view);
    const TRegra data = [](auto... AArgs) { ValidarData(AArgs...); };
    const TRegra ip = [](auto... AArgs) { ValidarIPAddress(AArgs...); };
    TControleWin32 controle(FCaixas->GetCaixa(0));
    for (const TRegra regra : {data, ip, TRegra{ValidarCRC}, TRegra{TOryUtilsValidacoes::ValidarEmail}}) {
        FCaixas->Entrar(1);
        aviso.clear();
        EXPECT_THROW(regra(nullptr, &controle, u"x@", u"Verifique."), EAbort);
        EXPECT_EQ(aviso, u"Verifique.");
        EXPECT_EQ(foco, FCaixas->GetCaixa(0)) << "before the warning";
    }
    CosturaInterface() = BuscarCosturaPadrao();
}

}  // namespace
}  // namespace OryUtils
