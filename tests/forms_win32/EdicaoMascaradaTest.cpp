// Real edit controls bound to fields: typed into, pasted into, left.
#include "oryutils/forms/win32/ControleWin32.hpp"
#include "oryutils/forms/win32/EdicaoMascaradaWin32.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Utf.hpp"

#include "Auxiliares.hpp"

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

struct TCaso {
    void (*Formatar)(TField&);
    TFieldType Tipo;
    const wchar_t* Digitado;
    WPARAM Tecla;  // pressed afterwards; 0 for none
    const char16_t* NaCaixa;
    const char16_t* Gravado;  // the field's text after the box is left
    const char16_t* Exibido;
};
void FormatarData(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999;1;_"); }
const TCaso CCasos[] = {
    {FormatarCPF, ftString, L"529982a24725", 0, u"529.982.247-25", u"52998224725", u"529.982.247-25"},
    {FormatarCPF, ftString, L"529", VK_LEFT, u"529.   .   -  ", u"529", u"529.   .   -  "},
    {FormatarCPF, ftString, L"529\b\b4", 0, u"54 .   .   -  ", u"54", u"54 .   .   -  "},
    {FormatarCPF, ftString, L"529", VK_HOME, u"529.   .   -  ", u"529", u"529.   .   -  "},
    {FormatarCNPJ, ftString, L"11.222.333/0001-81", 0, u"11.222.333/0001-81", u"11222333000181", u"11.222.333/0001-81"},
    {FormatarCEP, ftString, L"01310100", VK_DELETE, u"01310-100", u"01310100", u"01310-100"},
    {FormatarFone, ftString, L"11987654321", 0, u"(119)87654-321 ", u"( 11)98765-4321", u"( 11)98765-4321"},
    {FormatarData, ftDate, L"29022024", 0, u"29/02/2024", u"29/02/2024", u"29/02/2024"},
    {FormatarCampoValor, ftFloat, L"-12x34.5,", 0, u"-1234,5", u"-1234,50", u"-1.234,50"},
    {FormatarCampoInteiro, ftInteger, L"1,5", 0, u"15", u"15", u"15"},
};

TEST_F(EdicaoWin32, DigitarEDeixar) {
    for (const TCaso& caso : CCasos) {
        TFormulario formulario;
        formulario.SetTitulo(u"Edição");
        Por<TCaixaEdicao>(formulario, u"", {0, 0, 200, 22});
        Por<TCaixaEdicao>(formulario, u"", {0, 30, 200, 22});
        std::unique_ptr<TField> campo = EhCampoNumerico(caso.Tipo) ? std::make_unique<TNumericField>(caso.Tipo)
                                                                   : std::make_unique<TField>(caso.Tipo);
        caso.Formatar(*campo);
        std::optional<TEdicaoMascaradaWin32> edicao;
        HWND caixa = nullptr, outra = nullptr;
        const std::string porque = ParaUtf8(caso.NaCaixa);
        Executar(formulario, {
                                 [&] {
                                     caixa = Filhos(Janela(formulario))[0];
                                     outra = Filhos(Janela(formulario))[1];
                                     edicao.emplace(caixa, *campo);
                                     ::SetFocus(caixa);
                                     Escrever(caso.Digitado);
                                     if (caso.Tecla) Tecla(caso.Tecla);
                                 },
                                 [&] {
                                     EXPECT_EQ(ParaUtf8(Texto(caixa)), porque);
                                     ::SetFocus(outra);
                                 },
                                 [&] {
                                     EXPECT_EQ(ParaUtf8(Texto(caixa)), ParaUtf8(caso.Exibido));
                                     EXPECT_EQ(ParaUtf8(campo->GetTexto()), ParaUtf8(caso.Gravado)) << porque;
                                     formulario.SetModalResult(mrOk);
                                 },
                             });
    }
}

TEST_F(EdicaoWin32, ColarRecortarEErro) {
    TFormulario formulario;
    formulario.SetTitulo(u"Edição");
    Por<TCaixaEdicao>(formulario, u"", {0, 0, 200, 22});
    Por<TCaixaEdicao>(formulario, u"", {0, 30, 200, 22});
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
    TFormulario formulario;
    formulario.SetTitulo(u"Edição");
    Por<TCaixaEdicao>(formulario, u"", {0, 0, 200, 22});
    Por<TCaixaEdicao>(formulario, u"", {0, 30, 200, 22});
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
    TFormulario formulario;
    formulario.SetTitulo(u"Edição");
    Por<TCaixaEdicao>(formulario, u"", {0, 0, 200, 22});
    Por<TCaixaEdicao>(formulario, u"", {0, 30, 200, 22});
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
