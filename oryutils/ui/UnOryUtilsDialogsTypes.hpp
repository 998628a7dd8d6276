#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/forms/Controles.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Tabela.hpp"

#include <array>
#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Kind of a message: decides its icon and its usual title.
enum TMsgDlgType : int { mtWarning, mtError, mtInformation, mtConfirmation, mtCustom };

/// Kind of a button. A message form creates its buttons in this order.
enum TMsgDlgBtn : int {
    mbYes,
    mbNo,
    mbOK,
    mbCancel,
    mbAbort,
    mbRetry,
    mbIgnore,
    mbAll,
    mbNoToAll,
    mbYesToAll,
    mbHelp,
    mbClose,
};

/// Texts of the dialogs. The first sixteen are the titles and captions of the first version, in its order.
enum TTextoDialogo : int {
    tdAtencao,
    tdErro,
    tdInformacao,
    tdConfirmacao,
    tdSim,
    tdNao,
    tdOK,
    tdCancelar,
    tdAjuda,
    tdAbortar,
    tdRetry,
    tdIgnorar,
    tdTodos,
    tdNaoParaTodos,
    tdSimParaTodos,
    tdFechar,
    tdAviso,           ///< title of Alerta; differs from "Atenção" on purpose
    tdOpcoes,          ///< caption of the options group
    tdNotaFechamento,  ///< note of an auto-closing message; %s is the time
    tdMostrarDetalhes,
    tdOcultarDetalhes,
    tdTodosArquivos,          ///< filter of the simple file picker
    tdMensagensGuardadas,     ///< message of the notification centre; %s is how many
    tdNaoPerguntarNovamente,  ///< check box of a message whose answer may be remembered
    tdLocalizar,              ///< label of the box that finds items of a list
    tdPreenchimento,          ///< refuses a blank text
    tdEscolha,                ///< refuses no item
};

/// One kind of button. A new kind is an enumerator of TMsgDlgBtn and a row of CDadosBotao; every other table of buttons
/// is made of these rows.
struct TDadosBotao {
    TMsgDlgBtn Tipo;
    std::u16string_view Nome;     ///< name of the button's control on a message form
    int ModalResult;              ///< what the button answers; the help button closes nothing
    std::u16string_view Caption;  ///< Portuguese text
};
// "&Retry" is English among Portuguese captions since the first version; users know it.
// clang-format off
inline constexpr std::array CDadosBotao{
    TDadosBotao{mbYes,      u"Yes",      mrYes,      u"&Sim"},
    TDadosBotao{mbNo,       u"No",       mrNo,       u"&Não"},
    TDadosBotao{mbOK,       u"OK",       mrOk,       u"O&K"},
    TDadosBotao{mbCancel,   u"Cancel",   mrCancel,   u"&Cancelar"},
    TDadosBotao{mbAbort,    u"Abort",    mrAbort,    u"A&bortar"},
    TDadosBotao{mbRetry,    u"Retry",    mrRetry,    u"&Retry"},
    TDadosBotao{mbIgnore,   u"Ignore",   mrIgnore,   u"&Ignorar"},
    TDadosBotao{mbAll,      u"All",      mrAll,      u"To&dos"},
    TDadosBotao{mbNoToAll,  u"NoToAll",  mrNoToAll,  u"Nã&o p/ Todos"},
    TDadosBotao{mbYesToAll, u"YesToAll", mrYesToAll, u"Si&m p/ Todos"},
    TDadosBotao{mbHelp,     u"Help",     mrNone,     u"&Ajuda"},
    TDadosBotao{mbClose,    u"Close",    mrClose,    u"&Fechar"},
};
// clang-format on
static_assert(CobreEnumeracao<CDadosBotao, &TDadosBotao::Tipo>());
inline constexpr std::size_t CQuantidadeBotoes = CDadosBotao.size();

/// CNomesBotao[mbYes] is "Yes".
inline constexpr auto CNomesBotao = BuscarColuna<CDadosBotao, &TDadosBotao::Nome>();
/// CModalResults[mbYes] is mrYes.
inline constexpr auto CModalResults = BuscarColuna<CDadosBotao, &TDadosBotao::ModalResult>();

/// One kind of message.
struct TDadosDialogo {
    TMsgDlgType Tipo;
    int IdIcone;                          ///< number of the system's icon; 0 is none
    std::optional<TTextoDialogo> Titulo;  ///< usual title
};
inline constexpr std::array CDadosDialogo{
    TDadosDialogo{mtWarning, 32515, tdAtencao},        TDadosDialogo{mtError, 32513, tdErro},
    TDadosDialogo{mtInformation, 32516, tdInformacao}, TDadosDialogo{mtConfirmation, 32514, tdConfirmacao},
    TDadosDialogo{mtCustom, 0, std::nullopt},
};
static_assert(CobreEnumeracao<CDadosDialogo, &TDadosDialogo::Tipo>());
/// CIDsIcones[mtWarning] is 32515.
inline constexpr auto CIDsIcones = BuscarColuna<CDadosDialogo, &TDadosDialogo::IdIcone>();

/// Default button of a yes/no confirmation. The ordinals are the modal results.
enum TButtonType : int {
    btNone = mrNone,
    btOK = mrOk,
    btCancel = mrCancel,
    btAbort = mrAbort,
    btRetry = mrRetry,
    btIgnore = mrIgnore,
    btYes = mrYes,
    btNo = mrNo,
    btAll = mrAll,
    btNoToAll = mrNoToAll,
    btYesToAll = mrYesToAll,
    btClose = mrClose,
};

/// Where a check box stands: above or below the buttons.
enum TPosicaoCaixaChecagem : int { pccAcima, pccAbaixo };

/// A set of button kinds. An ordinal without a name is never a member.
class TMsgDlgButtons {
public:
    TMsgDlgButtons() = default;
    TMsgDlgButtons(std::initializer_list<TMsgDlgBtn> ABotoes) {
        for (const TMsgDlgBtn botao : ABotoes) Incluir(botao);
    }
    explicit TMsgDlgButtons(const std::vector<TMsgDlgBtn>& ABotoes) {
        for (const TMsgDlgBtn botao : ABotoes) Incluir(botao);
    }
    void Incluir(TMsgDlgBtn ABotao) {
        if (EhConhecido(ABotao)) FMembros.set(static_cast<std::size_t>(ABotao));
    }
    bool Contem(TMsgDlgBtn ABotao) const { return EhConhecido(ABotao) && FMembros[static_cast<std::size_t>(ABotao)]; }
    bool EstahVazio() const { return FMembros.none(); }
    std::size_t GetQuantidade() const { return FMembros.count(); }
    bool operator==(const TMsgDlgButtons&) const = default;

    static constexpr bool EhConhecido(TMsgDlgBtn ABotao) {
        return ABotao >= 0 && static_cast<std::size_t>(ABotao) < CQuantidadeBotoes;
    }

private:
    std::bitset<CQuantidadeBotoes> FMembros;
};

/// The texts of one generation of dialogs. A host replaces what it wants in another language, from the thread of the
/// user interface; forms built afterwards use the new texts.
/// Example:  TextosDialogos().Substituir(tdRetry, u"&Repetir");
class ORY_API TTextosDialogos {
public:
    TTextosDialogos();
    /// Empty for an ordinal without a name.
    const std::u16string& Buscar(TTextoDialogo ATexto) const;
    /// The caption of a button of that kind; empty for an ordinal without a name.
    const std::u16string& BuscarCaption(TMsgDlgBtn ABotao) const;
    /// The usual title of a message of that kind; empty for mtCustom.
    const std::u16string& BuscarCaption(TMsgDlgType ATipo) const;
    void Substituir(TTextoDialogo ATexto, std::u16string_view AValor);
    /// Replaces the caption of a button of that kind, whether or not a TTextoDialogo names it.
    void Substituir(TMsgDlgBtn ABotao, std::u16string_view ACaption);
    /// Back to the Portuguese texts.
    void Restaurar();

private:
    std::vector<std::u16string> FTextos;    // by TTextoDialogo; those of captions stay empty
    std::vector<std::u16string> FCaptions;  // by TMsgDlgBtn
};

/// The texts of TOryUtilsDialogs. Those of OryMsg are OryMsg::Textos().
ORY_API TTextosDialogos& TextosDialogos();

/// The captions in use by TOryUtilsDialogs: CCaptionsBotao[mbYes] is "&Sim".
struct TCaptionsBotao {
    const std::u16string& operator[](TMsgDlgBtn ABotao) const { return TextosDialogos().BuscarCaption(ABotao); }
};
inline constexpr TCaptionsBotao CCaptionsBotao{};

/// CCaptionsDialogo[mtWarning] is "Atenção".
struct TCaptionsDialogo {
    const std::u16string& operator[](TMsgDlgType ATipo) const { return TextosDialogos().BuscarCaption(ATipo); }
};
inline constexpr TCaptionsDialogo CCaptionsDialogo{};

/// Least width of a button on a message form, in pixels, by kind. Filled at the library's start with the width that
/// BuscarTamanhoBotao gives the default caption at 8 points; a host may widen an entry for all its messages.
extern ORY_API std::array<int, CQuantidadeBotoes> CLarguraBotao;
/// Fills CLarguraBotao again, from the captions in use.
ORY_API void PreencherLargurasBotao();

}  // namespace OryUtils
