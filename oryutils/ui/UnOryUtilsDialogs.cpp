#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/ui/OryUtilsControls.hpp"
#include "oryutils/ui/interno/FormularioDetalhe.hpp"
#include "oryutils/ui/interno/FormularioEntrada.hpp"
#include "oryutils/ui/interno/Medidas.hpp"
#include "oryutils/ui/interno/RespostasLembradas.hpp"
#include "oryutils/ui/interno/Seletores.hpp"
#include "oryutils/ui/interno/Variantes.hpp"

#include <algorithm>

namespace OryUtils {

TInstanciaGlobal<TOryUtilsDialogs> GOryUtilsDialogs;

TOryUtilsDialogs::TOryUtilsDialogs() : FFormularios(std::make_shared<TFormulariosVivos>()) {}
TOryUtilsDialogs::~TOryUtilsDialogs() = default;

int TOryUtilsDialogs::Avisar(TMsgDlgType ATipo, TTextoDialogo ATitulo, std::u16string_view AMensagem) {
    const auto parametros = BuscarConfiguracaoPadraoMensagem(AMensagem);
    parametros->TipoDialogo = ATipo;
    parametros->Titulo = TextosDialogos().Buscar(ATitulo);
    return ValidarExibicaoMensagem(*parametros);
}

int TOryUtilsDialogs::Informacao(std::u16string_view AMensagem) {
    return Avisar(mtInformation, tdInformacao, AMensagem);
}
int TOryUtilsDialogs::Alerta(std::u16string_view AMensagem) { return Avisar(mtWarning, tdAviso, AMensagem); }
int TOryUtilsDialogs::Erro(std::u16string_view AMensagem) { return Avisar(mtError, tdErro, AMensagem); }

bool TOryUtilsDialogs::Confirmacao(std::u16string_view AMensagem, TButtonType APadrao, std::u16string_view ATitulo) {
    return ConfirmacaoRetornoModal(AMensagem, APadrao, ATitulo) == mrYes;
}

int TOryUtilsDialogs::ConfirmacaoRetornoModal(std::u16string_view AMensagem, TButtonType APadrao,
                                              std::u16string_view ATitulo) {
    const std::u16string_view titulo = Aparar(ATitulo).empty() ? CCaptionsDialogo[mtConfirmation] : ATitulo;
    return ConfirmacaoCustomizada(AMensagem, mtConfirmation, {mbYes, mbNo}, APadrao, titulo,
                                  {CCaptionsBotao[mbYes], CCaptionsBotao[mbNo]});
}

int TOryUtilsDialogs::ConfirmacaoCustomizada(const TOryUtilsDialogsFormCustomizadoIOP& AParametros) {
    return BuscarFormularioConfirmacaoCustomizado(AParametros)->ExecutarModal();
}

int TOryUtilsDialogs::ConfirmacaoCustomizada(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                             const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                             std::u16string_view ATitulo,
                                             const std::vector<std::u16string>& ACaptions) {
    return ConfirmacaoCustomizada(
        MontarParametros<TOryUtilsDialogsFormCustomizadoIOP>(AMensagem, ATipo, ABotoes, APadrao, ATitulo, ACaptions));
}

std::unique_ptr<TOryUtilsDialogsRetornoMensagemOpcoesIOP> TOryUtilsDialogs::ConfirmacaoCustomizadaComOpcoes(
    const TOryUtilsDialogsFormCustomizadoComOpcoesIOP& AParametros) {
    return std::make_unique<TOryUtilsDialogsRetornoMensagemOpcoesIOP>(
        ExecutarComOpcoes(AParametros, TextosDialogos(), FFormularios));
}

std::unique_ptr<TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP>
TOryUtilsDialogs::ConfirmacaoCustomizadaComCaixaChecagem(
    const TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP& AParametros) {
    return std::make_unique<TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP>(
        ExecutarComCaixaChecagem(AParametros, TextosDialogos(), FFormularios));
}

int TOryUtilsDialogs::ConfirmacaoCustomizadaComCaixaChecagem(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                                             const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                                             std::u16string_view ATitulo,
                                                             const std::vector<std::u16string>& ACaptions,
                                                             std::u16string_view ATextoCaixaChecagem,
                                                             TPosicaoCaixaChecagem APosicao, bool& AMarcada) {
    auto parametros = MontarParametros<TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP>(AMensagem, ATipo, ABotoes,
                                                                                        APadrao, ATitulo, ACaptions);
    parametros.TextoCaixaChecagem = ATextoCaixaChecagem;
    parametros.PosicaoCaixaChecagem = APosicao;
    const auto retorno = ConfirmacaoCustomizadaComCaixaChecagem(parametros);
    AMarcada = retorno->CaixaChecagem;
    return retorno->RetornoMensagem;
}

std::unique_ptr<TOryUtilsDialogsRetornoMensagemLembradaIOP> TOryUtilsDialogs::ConfirmacaoCustomizadaLembrada(
    const TOryUtilsDialogsFormCustomizadoLembradaIOP& AParametros) {
    return std::make_unique<TOryUtilsDialogsRetornoMensagemLembradaIOP>(
        ExecutarLembrada(AParametros, TextosDialogos(), FFormularios));
}

bool TOryUtilsDialogs::EsquecerResposta(std::u16string_view AChave) { return EsquecerRespostaLembrada(AChave); }

void TOryUtilsDialogs::EsquecerRespostas() { EsquecerRespostasLembradas(); }

int TOryUtilsDialogs::ConfirmacaoCustomizadaComDetalhes(
    const TOryUtilsDialogsFormCustomizadoComDetalhesIOP& AParametros) {
    TFormularioDetalhe formulario(AParametros, AParametros.MensagemDetalhe, TextosDialogos(), FFormularios);
    formulario.ContextoAjuda = AParametros.ContextoAjuda;
    return formulario.ExecutarModal();
}

int TOryUtilsDialogs::InformacaoDetalhada(const TOryUtilsDialogsFormDetalhesIOP& AParametros) {
    return ExecutarFormularioDetalhe(AParametros, CCaptionsDialogo[AParametros.TipoDialogo], TextosDialogos(),
                                     FFormularios);
}

std::unique_ptr<TOryUtilsDialogsAndamento> TOryUtilsDialogs::MostrarAndamento(
    const TOryUtilsDialogsAndamentoIOP& AParametros) {
    return std::make_unique<TOryUtilsDialogsAndamento>(AParametros);
}

std::unique_ptr<TFormulario> TOryUtilsDialogs::BuscarFormularioConfirmacaoCustomizado(
    const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros) {
    return std::make_unique<TFormularioMensagem>(AParametros, TextosDialogos(), FFormularios);
}

std::unique_ptr<TOryUtilsDialogsFormCustomizadoIOP> TOryUtilsDialogs::BuscarConfiguracaoPadraoMensagem(
    std::u16string_view AMensagem) const {
    return std::make_unique<TOryUtilsDialogsFormCustomizadoIOP>(MontarParametros<TOryUtilsDialogsFormCustomizadoIOP>(
        AMensagem, mtInformation, {mbOK}, mrNone, u"", {CCaptionsBotao[mbOK]}));
}

int TOryUtilsDialogs::ValidarExibicaoMensagem(const TOryUtilsDialogsFormCustomizadoIOP& AParametros) {
    ExigirToolkit();
    if (!FCentral.EstahAcumulando()) return ConfirmacaoCustomizada(AParametros);
    FCentral.Adicionar(AParametros.Titulo, AParametros.Mensagem, AParametros.TipoDialogo);
    return mrNone;
}

TOryUtilsDialogsInfoFormMensagemIOP TOryUtilsDialogs::BuscarInformarcoesFormMensagem(const TFormulario& AFormulario) {
    return BuscarFatosDoFormulario(AFormulario);
}

int TOryUtilsDialogs::BuscarTamanhoBotao(const TBotao& ABotao) {
    return CalcularLarguraBotao(BuscarToolkit().GetTamanhoFonte(), ABotao.GetTexto().size());
}

TTamanho TOryUtilsDialogs::GetAveCharSize(const TToolkit& ACanvas) { return MedirCaractere(ACanvas); }

std::u16string TOryUtilsDialogs::InputBox(std::u16string_view ATitulo, std::u16string_view APergunta,
                                          std::u16string_view ADefault) {
    std::u16string valor(ADefault);
    InputQuery(ATitulo, APergunta, valor);
    return valor;
}

bool TOryUtilsDialogs::InputQuery(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor) {
    return ExecutarFormularioEntrada(ATitulo, APergunta, AValor, TextosDialogos());
}

std::u16string TOryUtilsDialogs::BuscarArquivoSelecionado(std::u16string_view APastaInicial) {
    return SelecionarArquivo(APastaInicial, TextosDialogos().Buscar(tdTodosArquivos) + u"|*.*");
}

std::u16string TOryUtilsDialogs::BuscarArquivoSelecionado(std::u16string_view APastaInicial,
                                                          const std::vector<std::u16string>& ADescricoes,
                                                          const std::vector<std::u16string>& AMascaras) {
    std::u16string filtro;
    for (std::size_t i = 0; i < std::min(ADescricoes.size(), AMascaras.size()); ++i)
        filtro += ADescricoes[i] + u"|" + AMascaras[i] + u"|";
    return SelecionarArquivo(APastaInicial, filtro);
}

std::u16string TOryUtilsDialogs::BuscarPastaSelecionada(std::u16string_view ATitulo,
                                                        std::u16string_view APastaInicial) {
    return SelecionarPasta(ATitulo, APastaInicial);
}

TFormulario* TOryUtilsDialogs::GetFormularioAtual() const noexcept {
    return FFormularios->Formularios.empty() ? nullptr : FFormularios->Formularios.back();
}

TOryUtilsDialogsFormCustomizadoBaseIOP TOryUtilsDialogs::GetConfiguracao() const {
    const auto& formularios = FFormularios->Formularios;
    return formularios.empty() ? TOryUtilsDialogsFormCustomizadoBaseIOP{} : formularios.back()->GetParametros();
}

bool TOryUtilsDialogs::GetTemporizadorLigado() const noexcept {
    return !FFormularios->Formularios.empty() && FFormularios->Formularios.back()->GetTemporizadorLigado();
}

bool TOryUtilsDialogs::GetFechadaPorTempo() const noexcept { return FFormularios->UltimaPorTempo; }

TEvento<TObjeto*, int>& EventoDeAjuda() {
    static TEvento<TObjeto*, int> evento;
    return evento;
}

void IniciarInterface() {
    PreencherLargurasBotao();
    CosturaInterface() = {
        .Alerta = [](std::u16string_view AMensagem) { GOryUtilsDialogs->Alerta(AMensagem); },
        .Erro = [](std::u16string_view AMensagem) { GOryUtilsDialogs->Erro(AMensagem); },
        .ProcessarMensagens = [] { BuscarToolkit().ProcessarMensagens(); },
        .AtribuirFoco = [](TWinControl* AControle) { GOryUtilsControls->AtribuirFocoControle(AControle); },
        .BuscarPixelsPorPolegada = [] { return BuscarToolkit().GetPixelsPorPolegada(); },
        .MostrarCursorOcupado = [](bool AOcupado) { BuscarToolkit().SetCursor(AOcupado ? ctAmpulheta : ctNormal); },
        .DesabilitarJanelas = [] { return BuscarToolkit().DesabilitarJanelas(); }};
}

void FinalizarInterface() { CosturaInterface() = BuscarCosturaPadrao(); }

}  // namespace OryUtils
