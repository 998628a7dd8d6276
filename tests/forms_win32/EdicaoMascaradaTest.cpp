// Real edit controls bound to fields: typed into, pasted into, left.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "Auxiliares.hpp"
#include "forms/CasosDeEdicao.hpp"

#include <cstring>
#include <optional>

namespace OryUtils {
namespace {

class EdicaoWin32 : public FormsWin32 {
protected:
    void SetUp() override {
        FormsWin32::SetUp();
        GOryUtilsFormatacoes.Criar();
        ControladorFormatos().GetFormats();
    }
    void TearDown() override {
        GOryUtilsFormatacoes.Liberar();
        FormsWin32::TearDown();
    }

    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

struct TDuasCaixas : TFormulario {
    TDuasCaixas() {
        SetTitulo(u"Edição");
        Por<TCaixaEdicao>(*this, u"", {0, 0, 200, 22});
        Por<TCaixaEdicao>(*this, u"", {0, 30, 200, 22});
    }
};

TEST_F(EdicaoWin32, DigitarEDeixar) {
    constexpr WPARAM CTeclas[] = {VK_LEFT, VK_RIGHT, VK_HOME, VK_END, 0, VK_DELETE};  // in the order of TTeclaMascara
    for (const TCasoDeEdicao& caso : CCasosDeEdicao) {
        TDuasCaixas formulario;
        const auto campo = caso.CriarCampo();
        std::optional<TEdicaoMascaradaWin32> edicao;
        HWND caixa = nullptr, outra = nullptr;
        const auto digitar = [&] {
            caixa = Filhos(Janela(formulario))[0];
            outra = Filhos(Janela(formulario))[1];
            edicao.emplace(caixa, *campo);
            ::SetFocus(caixa);
            Escrever(std::wstring(caso.Digitado, caso.Digitado + std::strlen(caso.Digitado)).c_str());
            if (caso.Tecla == tmApagar)
                Escrever(L"\b");
            else if (caso.Tecla)
                Tecla(CTeclas[*caso.Tecla]);
        };
        const auto deixar = [&] {
            EXPECT_EQ(ParaUtf8(Texto(caixa)), caso.NaCaixa);
            EXPECT_EQ(LOWORD(::SendMessageW(caixa, EM_GETSEL, 0, 0)), caso.Cursor) << caso.NaCaixa;
            ::SetFocus(outra);
        };
        const auto conferir = [&] {
            EXPECT_EQ(ParaUtf8(Texto(caixa)), caso.Exibido);
            EXPECT_EQ(ParaUtf8(campo->GetTexto()), caso.Gravado);
            formulario.SetModalResult(mrOk);
        };
        Executar(formulario, {digitar, deixar, conferir});
    }
}

TEST_F(EdicaoWin32, ColarRecortarEErro) {
    TDuasCaixas formulario;
    TField cpf(ftString);
    FormatarCPF(cpf);
    TField data(ftDate);
    FormatarData(data);
    std::optional<TEdicaoMascaradaWin32> edicao, edicaoData;
    HWND caixa = nullptr, outra = nullptr;
    Executar(formulario, {
                             [&] {
                                 caixa = Filhos(Janela(formulario))[0];
                                 outra = Filhos(Janela(formulario))[1];
                                 edicao.emplace(caixa, cpf);
                                 edicaoData.emplace(outra, data);
                                 ::SetFocus(caixa);
                                 FToolkit.CopiarParaAreaDeTransferencia(u" 529 982.247/25\r\n");
                                 ::SendMessageW(caixa, WM_PASTE, 0, 0);
                                 EXPECT_EQ(Texto(caixa), u"529.982.247-25");
                                 ::SendMessageW(caixa, EM_SETSEL, 4, 7);
                                 ::SendMessageW(caixa, WM_CUT, 0, 0);
                                 EXPECT_EQ(Texto(caixa), u"529.   .247-25");
                                 ::SendMessageW(caixa, EM_UNDO, 0, 0);
                                 EXPECT_EQ(Texto(caixa), u"529.   .247-25");
                                 ::SetWindowTextW(caixa, L"11144477735");
                                 EXPECT_EQ(Texto(caixa), u"111.444.777-35") << "a text of the program";
                                 ::SetFocus(outra);
                                 Escrever(L"30022024");
                             },
                             [&] {
                                 EXPECT_EQ(cpf.GetValor(), Variant(u"11144477735"));
                                 ::SetFocus(caixa);
                                 EXPECT_EQ(Texto(outra), u"30/02/2024") << "a refused text stays";
                                 EXPECT_NE(edicaoData->GetErro(), u"");
                                 EXPECT_TRUE(data.EhNulo());
                                 formulario.SetModalResult(mrOk);
                             },
                         });
    EXPECT_EQ(edicao->GetHandle(), nullptr) << "the control is gone";
    edicao->Atualizar();
}

TEST_F(EdicaoWin32, FormatosMudados) {
    TDuasCaixas formulario;
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    valor.SetValor(1234.5);
    Executar(formulario, {[&] {
                 const HWND outra = Filhos(Janela(formulario))[1];
                 const TEdicaoMascaradaWin32 edicao(outra, valor);
                 EXPECT_EQ(Texto(outra), u"1.234,50");
                 DefinirFormatSettings(TFormatSettings{});
                 GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().SetUsarNosControlesDevExpress(true);
                 EXPECT_EQ(Texto(outra), u"1,234.50");
                 formulario.SetModalResult(mrOk);
             }});
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
    TDuasCaixas formulario;
    Executar(formulario, {[&] {
                 const auto filhos = Filhos(Janela(formulario));
                 TControleWin32 controle(filhos[0]);
                 for (const TRegra regra : {data, ip, TRegra{ValidarCRC}, TRegra{TOryUtilsValidacoes::ValidarEmail}}) {
                     ::SetFocus(filhos[1]);
                     aviso.clear();
                     EXPECT_THROW(regra(nullptr, &controle, u"x@", u"Verifique."), EAbort);
                     EXPECT_EQ(aviso, u"Verifique.");
                     EXPECT_EQ(foco, filhos[0]) << "before the warning";
                 }
                 formulario.SetModalResult(mrOk);
             }});
    CosturaInterface() = BuscarCosturaPadrao();
}

}  // namespace
}  // namespace OryUtils
