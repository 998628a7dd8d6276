#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/forms/Formulario.hpp"
#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// The older generation of the message dialogs, with positional arguments; behaves like TOryUtilsDialogs and shares its
/// notification centre. Its texts are its own. Belongs to the thread of the user interface: from another thread every
/// operation that shows raises Exception.
class ORY_API OryMsg {
public:
    /// The texts of this generation; a host may replace them.
    static TTextosDialogos& Textos();

    /// Shows AMensagem with an OK button, titled "Informação", "Aviso" or "Erro". Returns the modal result; mrNone when
    /// the notification centre of GOryUtilsDialogs is accumulating and kept the message.
    static int Information(std::u16string_view AMensagem);
    static int Warning(std::u16string_view AMensagem);
    static int Error(std::u16string_view AMensagem);

    /// Asks "&Sim" or "&Não", the focus on APadrao; true for yes. An empty title becomes "Confirmação".
    /// Example:  if (OryMsg::Confirmation(u"Gravar as alterações?", btYes, u"Clientes")) ...
    static bool Confirmation(std::u16string_view AMensagem, TButtonType APadrao, std::u16string_view ATitulo);
    static bool ConfirmationType(std::u16string_view AMensagem, TButtonType APadrao);

    /// Asks with buttons of the caller's: ACaptions goes with ABotoes, in its order; APadrao is the modal result of the
    /// button with the focus. Returns the modal result. Raises Exception "TOryUtilsDialogsFormCustomizadoIOP.Botoes:
    /// preenchimento obrigatório." when ABotoes is empty, and the same of CaptionBotoes.
    static int ConfirmationCustom(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                  const std::vector<TMsgDlgBtn>& ABotoes, int APadrao, std::u16string_view ATitulo,
                                  const std::vector<std::u16string>& ACaptions);
    /// With the group of options "Opções: ".
    /// AOpcao  in: the option chosen beforehand, from 0 (-1: none); out: the one chosen, -1 for none.
    static int ConfirmationCustom(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                  const std::vector<TMsgDlgBtn>& ABotoes, int APadrao, std::u16string_view ATitulo,
                                  const std::vector<std::u16string>& ACaptions,
                                  const std::vector<std::u16string>& AOpcoes, int& AOpcao);
    /// The form of ConfirmationCustom, built and not shown.
    static std::unique_ptr<TFormulario> GetConfirmationCustomForm(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                                                  const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                                                  std::u16string_view ATitulo,
                                                                  const std::vector<std::u16string>& ACaptions);
    /// With one check box, not checked at first.
    /// AMarcada  out: its state, however the form was closed.
    static int ConfirmacaoComCaixaChecagem(std::u16string_view AMensagem, TMsgDlgType ATipo,
                                           const std::vector<TMsgDlgBtn>& ABotoes, int APadrao,
                                           std::u16string_view ATitulo, const std::vector<std::u16string>& ACaptions,
                                           std::u16string_view ATextoCaixaChecagem, TPosicaoCaixaChecagem APosicao,
                                           bool& AMarcada);

    /// Width of a button by the rule of TOryUtilsDialogs::BuscarTamanhoBotao, in pixels.
    static int GetTamanhoBotoes(const TBotao& ABotao);

    /// Shows an information with a detail text that the user may open.
    static int InfoDlg(std::u16string_view AMensagem, std::u16string_view ADetalhe);
    /// The same with kind, buttons (usual captions; empty is OK alone) and title (empty: the kind's).
    static int DetailDlg(std::u16string_view AMensagem, std::u16string_view ADetalhe, TMsgDlgType ATipo,
                         const TMsgDlgButtons& ABotoes, std::u16string_view ATitulo = {});

    /// Asks for a line of text. Returns what was typed, or ADefault when cancelled.
    static std::u16string InputBox(std::u16string_view ATitulo, std::u16string_view APergunta,
                                   std::u16string_view ADefault);
    /// AValor  in: the text offered; out: the text typed, unchanged when cancelled. True when OK was chosen.
    static bool InputQuery(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor);

    /// The system's folder browser, APastaInicial selected at first: the chosen folder, empty when cancelled.
    static std::u16string BrowseDialog(std::u16string_view ATitulo, std::u16string_view APastaInicial = {});
};

/// The system's open-file dialog, from APastaInicial on, with one filter: the chosen file's full name, empty when
/// cancelled.
ORY_API std::u16string GetArquivoSelecionado(std::u16string_view APastaInicial,
                                             std::u16string_view ADescricao = u"Todos",
                                             std::u16string_view AMascara = u"*.*");
/// The system's folder browser: the chosen folder, empty when cancelled.
ORY_API std::u16string GetPastaSelecionada(std::u16string_view ATitulo, std::u16string_view APastaInicial);
/// Average character of the font in which ACanvas draws dialogs; see TOryUtilsDialogs::GetAveCharSize.
ORY_API TTamanho GetAveCharSize(const TToolkit& ACanvas);

}  // namespace OryUtils
