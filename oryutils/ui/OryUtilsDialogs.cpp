#include "oryutils/ui/OryUtilsDialogs.hpp"

#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/FormularioDetalhe.hpp"
#include "oryutils/ui/interno/FormularioEntrada.hpp"
#include "oryutils/ui/interno/Medidas.hpp"
#include "oryutils/ui/interno/Seletores.hpp"
#include "oryutils/ui/interno/Variantes.hpp"

namespace OryUtils {
namespace {

int Avisar(TMsgDlgType ATipo, TTextoDialogo ATitulo, std::u16string_view AMensagem) {
    ExigirToolkit();
    const std::u16string& titulo = OryMsg::Textos().Buscar(ATitulo);
    if (GOryUtilsDialogs && GOryUtilsDialogs->GetCentralNotificacoes().EstahAcumulando()) {
        GOryUtilsDialogs->GetCentralNotificacoes().Adicionar(titulo, AMensagem, ATipo);
        return mrNone;
    }
    return OryMsg::ConfirmationCustom(AMensagem, ATipo, {mbOK}, mrNone, titulo, {OryMsg::Textos().BuscarCaption(mbOK)});
}

}  // namespace

TTextosDialogos& OryMsg::Textos() {
    static TTextosDialogos textos;
    return textos;
}

int OryMsg::Information(std::u16string_view AMensagem) { return Avisar(mtInformation, tdInformacao, AMensagem); }
int OryMsg::Warning(std::u16string_view AMensagem) { return Avisar(mtWarning, tdAviso, AMensagem); }
int OryMsg::Error(std::u16string_view AMensagem) { return Avisar(mtError, tdErro, AMensagem); }

bool OryMsg::Confirmation(std::u16string_view AMensagem, TButtonType APadrao, std::u16string_view ATitulo) {
    const std::u16string_view titulo = ATitulo.empty() ? Textos().BuscarCaption(mtConfirmation) : ATitulo;
    return ConfirmationCustom(AMensagem, mtConfirmation, {mbYes, mbNo}, APadrao, titulo,
                              {Textos().BuscarCaption(mbYes), Textos().BuscarCaption(mbNo)}) == mrYes;
}

bool OryMsg::ConfirmationType(std::u16string_view AMensagem, TButtonType APadrao) {
    return Confirmation(AMensagem, APadrao, u"");
}

int OryMsg::ConfirmationCustom(std::u16string_view AMensagem, TMsgDlgType ATipo, const std::vector<TMsgDlgBtn>& ABotoes,
                               int APadrao, std::u16string_view ATitulo, const std::vector<std::u16string>& ACaptions) {
    return GetConfirmationCustomForm(AMensagem, ATipo, ABotoes, APadrao, ATitulo, ACaptions)->ExecutarModal();
}

int OryMsg::ConfirmationCustom(std::u16string_view AMensagem, TMsgDlgType ATipo, const std::vector<TMsgDlgBtn>& ABotoes,
                               int APadrao, std::u16string_view ATitulo, const std::vector<std::u16string>& ACaptions,
                               const std::vector<std::u16string>& AOpcoes, int& AOpcao) {
    auto parametros = MontarParametros<TOryUtilsDialogsFormCustomizadoComOpcoesIOP>(AMensagem, ATipo, ABotoes, APadrao,
                                                                                    ATitulo, ACaptions);
    parametros.OpcoesMensagem = AOpcoes;
    parametros.OpcaoPadrao = AOpcao;
    const auto retorno = ExecutarComOpcoes(parametros, Textos(), nullptr);
    AOpcao = retorno.IndiceOpcao;
    return retorno.RetornoMensagem;
}

std::unique_ptr<TFormulario> OryMsg::GetConfirmationCustomForm(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                                               const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                                               std::u16string_view ATitulo,
                                                               const std::vector<std::u16string>& ACaptions) {
    return std::make_unique<TFormularioMensagem>(
        MontarParametros<TOryUtilsDialogsFormCustomizadoIOP>(AMensagem, ATipo, ABotoes, APadrao, ATitulo, ACaptions),
        Textos(), nullptr);
}

int OryMsg::ConfirmacaoComCaixaChecagem(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                        const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                        std::u16string_view ATitulo, const std::vector<std::u16string>& ACaptions,
                                        std::u16string_view ATextoCaixaChecagem, TPosicaoCaixaChecagem APosicao,
                                        bool& AMarcada) {
    auto parametros = MontarParametros<TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP>(AMensagem, ATipo, ABotoes,
                                                                                        APadrao, ATitulo, ACaptions);
    parametros.TextoCaixaChecagem = ATextoCaixaChecagem;
    parametros.PosicaoCaixaChecagem = APosicao;
    const auto retorno = ExecutarComCaixaChecagem(parametros, Textos(), nullptr);
    AMarcada = retorno.CaixaChecagem;
    return retorno.RetornoMensagem;
}

int OryMsg::GetTamanhoBotoes(const TBotao& ABotao) { return TOryUtilsDialogs::BuscarTamanhoBotao(ABotao); }

int OryMsg::InfoDlg(std::u16string_view AMensagem, std::u16string_view ADetalhe) {
    return DetailDlg(AMensagem, ADetalhe, mtInformation, {mbOK});
}

int OryMsg::DetailDlg(std::u16string_view AMensagem, std::u16string_view ADetalhe, TMsgDlgType ATipo,
                      const TMsgDlgButtons& ABotoes, std::u16string_view ATitulo) {
    TOryUtilsDialogsFormDetalhesIOP parametros;
    parametros.Mensagem = AMensagem;
    parametros.MensagemDetalhe = ADetalhe;
    parametros.TipoDialogo = ATipo;
    parametros.Botoes = ABotoes;
    return ExecutarFormularioDetalhe(parametros, ATitulo.empty() ? Textos().BuscarCaption(ATipo) : ATitulo, Textos(),
                                     nullptr);
}

std::u16string OryMsg::InputBox(std::u16string_view ATitulo, std::u16string_view APergunta,
                                std::u16string_view ADefault) {
    std::u16string valor(ADefault);
    InputQuery(ATitulo, APergunta, valor);
    return valor;
}

bool OryMsg::InputQuery(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor) {
    return ExecutarFormularioEntrada(ATitulo, APergunta, AValor, Textos());
}

std::u16string OryMsg::BrowseDialog(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
    return SelecionarPasta(ATitulo, APastaInicial);
}

std::u16string GetArquivoSelecionado(std::u16string_view APastaInicial, std::u16string_view ADescricao,
                                     std::u16string_view AMascara) {
    return SelecionarArquivo(APastaInicial, std::u16string(ADescricao) + u"|" + std::u16string(AMascara));
}

std::u16string GetPastaSelecionada(std::u16string_view ATitulo, std::u16string_view APastaInicial) {
    return SelecionarPasta(ATitulo, APastaInicial);
}

TTamanho GetAveCharSize(const TToolkit& ACanvas) { return MedirCaractere(ACanvas); }

}  // namespace OryUtils
