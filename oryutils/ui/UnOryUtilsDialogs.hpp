#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/ui/UnOryUtilsDialogsAndamento.hpp"
#include "oryutils/ui/UnOryUtilsDialogsCentralNotificacoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogsEntradasIOP.hpp"
#include "oryutils/ui/UnOryUtilsDialogsIOP.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

struct TFormulariosVivos;

/// The one way the library speaks to the user. Belongs to the thread of the user interface: from another thread every
/// operation that shows or measures raises Exception "Formulários só podem ser mostrados pela thread da interface do
/// usuário.". Modal results are those of TModalResult; Esc and the window's close button give mrCancel, and so does an
/// auto-closing message that nobody answers.
class ORY_API TOryUtilsDialogs {
public:
    TOryUtilsDialogs();
    ~TOryUtilsDialogs();
    TOryUtilsDialogs(const TOryUtilsDialogs&) = delete;
    TOryUtilsDialogs& operator=(const TOryUtilsDialogs&) = delete;

    /// Shows AMensagem with an OK button, titled "Informação", "Aviso" or "Erro", and returns the modal result. While
    /// the notification centre accumulates, the message goes there instead and the result is mrNone.
    /// Example:  GOryUtilsDialogs->Alerta(u"CNPJ inválido. Verifique.");
    int Informacao(std::u16string_view AMensagem);
    int Alerta(std::u16string_view AMensagem);
    int Erro(std::u16string_view AMensagem);

    /// Asks "&Sim" or "&Não", the focus on APadrao; true for yes. A blank title becomes "Confirmação".
    /// Example:  if (GOryUtilsDialogs->Confirmacao(u"Excluir o cliente?", btNo, u"")) ...
    bool Confirmacao(std::u16string_view AMensagem, TButtonType APadrao, std::u16string_view ATitulo = {});
    /// The same, answering the modal result: mrYes, mrNo or mrCancel.
    int ConfirmacaoRetornoModal(std::u16string_view AMensagem, TButtonType APadrao, std::u16string_view ATitulo = {});

    /// Shows the form of BuscarFormularioConfirmacaoCustomizado and returns its modal result.
    int ConfirmacaoCustomizada(const TOryUtilsDialogsFormCustomizadoIOP& AParametros);
    /// APadrao is the modal result of the button with the focus; ACaptions goes with ABotoes, in its order.
    int ConfirmacaoCustomizada(std::u16string_view AMensagem, TMsgDlgType ATipo, const std::vector<TMsgDlgBtn>& ABotoes,
                               int APadrao, std::u16string_view ATitulo, const std::vector<std::u16string>& ACaptions);

    /// With a group of options, captioned "Opções: ", of which the user chooses one.
    std::unique_ptr<TOryUtilsDialogsRetornoMensagemOpcoesIOP> ConfirmacaoCustomizadaComOpcoes(
        const TOryUtilsDialogsFormCustomizadoComOpcoesIOP& AParametros);

    /// With one check box, not checked at first.
    std::unique_ptr<TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP> ConfirmacaoCustomizadaComCaixaChecagem(
        const TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP& AParametros);
    /// The same with positional arguments.
    /// AMarcada  out: the state of the check box, however the form was closed.
    int ConfirmacaoCustomizadaComCaixaChecagem(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                               const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                               std::u16string_view ATitulo,
                                               const std::vector<std::u16string>& ACaptions,
                                               std::u16string_view ATextoCaixaChecagem, TPosicaoCaixaChecagem APosicao,
                                               bool& AMarcada);

    /// With the check box "Não perguntar novamente" (or AParametros.TextoCaixaChecagem). An answer given with the box
    /// checked is kept in the settings of the user, under AParametros.Chave, and is the result from then on, without
    /// showing anything, as long as one of the buttons gives it. A cancel (mrCancel) is never remembered.
    /// Raises Exception when AParametros misses Botoes, CaptionBotoes or Chave.
    /// Example:  parametros.Chave = u"FecharComCaixaAberto";
    ///           if (GOryUtilsDialogs->ConfirmacaoCustomizadaLembrada(parametros)->RetornoMensagem == mrYes) ...
    std::unique_ptr<TOryUtilsDialogsRetornoMensagemLembradaIOP> ConfirmacaoCustomizadaLembrada(
        const TOryUtilsDialogsFormCustomizadoLembradaIOP& AParametros);
    /// Forgets the answer under that key: it is asked for again. False when none was remembered.
    bool EsquecerResposta(std::u16string_view AChave);
    /// Forgets all answers of this program.
    void EsquecerRespostas();

    /// With a button "Mostrar Detalhes" / "Ocultar Detalhes" that opens and closes a memo with the detail text. Ctrl+C
    /// beeps and copies message and detail to the clipboard.
    int ConfirmacaoCustomizadaComDetalhes(const TOryUtilsDialogsFormCustomizadoComDetalhesIOP& AParametros);
    /// The same with the usual captions and the usual title of AParametros.TipoDialogo.
    int InformacaoDetalhada(const TOryUtilsDialogsFormDetalhesIOP& AParametros);

    /// Shows a progress dialog, which stays as long as the result lives; see TOryUtilsDialogsAndamento.
    /// Example:  const auto andamento = GOryUtilsDialogs->MostrarAndamento({.Titulo = u"Cópia"});
    ///           while (Copiou() && andamento->Atualizar(BuscarPercentual(), BuscarArquivo())) {}
    std::unique_ptr<TOryUtilsDialogsAndamento> MostrarAndamento(const TOryUtilsDialogsAndamentoIOP& AParametros);

    /// Builds the message form without showing it: the host may add controls, move what is there, and run it by
    /// ExecutarModal; auto-closing works there too. The k-th button, in kind order, gets the k-th caption and the modal
    /// result of the k-th entry of Botoes; a single button gets its caption only.
    /// Raises Exception when AParametros misses Botoes or CaptionBotoes.
    std::unique_ptr<TFormulario> BuscarFormularioConfirmacaoCustomizado(
        const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros);

    /// Parameters of a plain message: the text, one button captioned "O&K".
    std::unique_ptr<TOryUtilsDialogsFormCustomizadoIOP> BuscarConfiguracaoPadraoMensagem(
        std::u16string_view AMensagem) const;
    /// Shows an information, warning or error: now, or through the notification centre (then mrNone).
    int ValidarExibicaoMensagem(const TOryUtilsDialogsFormCustomizadoIOP& AParametros);

    /// Layout facts of a message form, in pixels; the form may be any with buttons and a label "Message".
    static TOryUtilsDialogsInfoFormMensagemIOP BuscarInformarcoesFormMensagem(const TFormulario& AFormulario);
    /// round(font size in points * characters of the caption * 8 / 11), at least 75 pixels. The "&" counts.
    static int BuscarTamanhoBotao(const TBotao& ABotao);
    /// Average character of the font in which ACanvas draws dialogs: the 52 letters "A" to "Z", "a" to "z" measured
    /// together, width divided by 52, height as measured.
    static TTamanho GetAveCharSize(const TToolkit& ACanvas);

    /// Asks for a line of text. Returns what was typed, or ADefault when cancelled.
    std::u16string InputBox(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string_view ADefault);
    /// AValor  in: the text offered; out: the text typed, unchanged when cancelled. True when OK was chosen.
    bool InputQuery(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor);

    /// The system's open-file dialog, from APastaInicial on: the chosen file's full name, empty when cancelled. Filters
    /// with "Todos|*.*".
    std::u16string BuscarArquivoSelecionado(std::u16string_view APastaInicial);
    /// One filter for each pair of ADescricoes and AMascaras ("Textos", "*.txt;*.csv"); what is left over is ignored.
    std::u16string BuscarArquivoSelecionado(std::u16string_view APastaInicial,
                                            const std::vector<std::u16string>& ADescricoes,
                                            const std::vector<std::u16string>& AMascaras);
    /// The system's folder browser: the chosen folder, empty when cancelled.
    std::u16string BuscarPastaSelecionada(std::u16string_view ATitulo, std::u16string_view APastaInicial);

    /// Ask for a text, several lines, items of a list. True when OK was chosen; what cannot be answered is refused with
    /// a warning then, and stays in its box. Raise Exception from a thread that may not show forms, and PedirTexto
    /// EConvertError for a broken mask.
    /// AValor  in: the text offered, empty where it is none of that kind; out: as TTipoTexto says, unchanged when
    ///         cancelled
    /// Example:  std::u16string cpf;
    ///           if (GOryUtilsDialogs->PedirTexto({.Titulo = u"Cliente", .Pergunta = u"CPF:", .Tipo = ttCPF}, cpf)) ...
    bool PedirTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string& AValor);
    /// ASenha  out: what was typed; nothing is offered
    bool PedirSenha(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& ASenha);
    /// Enter starts a line, Ctrl+Enter is OK. Lines end with "\r\n".
    bool PedirLinhas(const TOryUtilsDialogsPedidoLinhasIOP& AParametros, std::u16string& AValor);
    /// What is typed into the box above the list leaves the items that have it in them, case and accents aside.
    /// AIndices  in: the items chosen beforehand, from 0; out: those chosen, ascending, unchanged when cancelled
    bool PedirEscolha(const TOryUtilsDialogsPedidoEscolhaIOP& AParametros, std::vector<std::int32_t>& AIndices);

    /// The pickers with a title, a start folder and filters of the caller's: full paths, empty when cancelled. On Win32
    /// they are the system's own, in its language.
    /// Raise Exception from a thread that may not show forms, and EscolherArquivos when too many were chosen.
    /// Example:  GOryUtilsDialogs->EscolherArquivos({.Filtros = {{u"Notas", u"*.xml"}, {u"Todos", u"*.*"}}});
    std::u16string EscolherArquivo(const TOryUtilsDialogsSelecaoIOP& AParametros);
    std::vector<std::u16string> EscolherArquivos(const TOryUtilsDialogsSelecaoIOP& AParametros);
    /// A file to write, which need not exist; one that does is answered only after the user agreed to replace it.
    /// Writes nothing.
    std::u16string EscolherArquivoParaSalvar(const TOryUtilsDialogsSelecaoIOP& AParametros);
    std::u16string EscolherPasta(const TOryUtilsDialogsSelecaoIOP& AParametros);

    TOryUtilsDialogsCentralNotificacoes& GetCentralNotificacoes() noexcept { return FCentral; }
    /// The innermost message form of this instance, built and not yet freed; null when there is none.
    TFormulario* GetFormularioAtual() const noexcept;
    /// Copy of the parameters of that form; of none, empty ones.
    TOryUtilsDialogsFormCustomizadoBaseIOP GetConfiguracao() const;
    /// Whether the auto-close timer of that form is running.
    bool GetTemporizadorLigado() const noexcept;
    /// Whether the message form of this instance that ended last closed because its time was over. Its result is
    /// mrCancel, as when somebody cancels.
    bool GetFechadaPorTempo() const noexcept;

private:
    int Avisar(TMsgDlgType ATipo, TTextoDialogo ATitulo, std::u16string_view AMensagem);

    TOryUtilsDialogsCentralNotificacoes FCentral;
    // The forms refer to the list too: a host may keep one longer than this instance.
    std::shared_ptr<TFormulariosVivos> FFormularios;
};

extern ORY_API TInstanciaGlobal<TOryUtilsDialogs> GOryUtilsDialogs;

/// What the dialogs of both generations fire when the user asks for help, by F1 or by a button without an answer
/// (mbHelp): the form, and its ContextoAjuda. Forms built afterwards fire it. Empty at first: then F1 is a key like any
/// other.
/// Example:  EventoDeAjuda() = TEvento<TObjeto*, int>::De<&TManual::AoPedirAjuda>(manual);
ORY_API TEvento<TObjeto*, int>& EventoDeAjuda();

/// Puts the dialogs behind the seam of the lower rooms, and takes them away.
void IniciarInterface();
void FinalizarInterface();

}  // namespace OryUtils
