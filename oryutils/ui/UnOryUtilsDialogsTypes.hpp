#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/forms/Controles.hpp"

#include <array>
#include <bitset>
#include <cstddef>
#include <initializer_list>
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
inline constexpr std::size_t CQuantidadeBotoes = 12;

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

/// Texts of the dialogs. The first sixteen are the captions known from the first version on, in that order.
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
    tdTodosArquivos,       ///< filter of the simple file picker
    tdMensagensGuardadas,  ///< message of the notification centre; %s is how many
};
inline constexpr std::size_t CQuantidadeTextos = 23;

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
    /// Back to the Portuguese texts.
    void Restaurar();

private:
    std::array<std::u16string, CQuantidadeTextos> FTextos;
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

/// Name of the button's control on a message form, by kind.
inline constexpr std::array<std::u16string_view, CQuantidadeBotoes> CNomesBotao{
    u"Yes", u"No", u"OK", u"Cancel", u"Abort", u"Retry", u"Ignore", u"All", u"NoToAll", u"YesToAll", u"Help", u"Close"};

/// What a button answers, by kind. The help button closes nothing.
inline constexpr std::array<int, CQuantidadeBotoes> CModalResults{
    mrYes, mrNo, mrOk, mrCancel, mrAbort, mrRetry, mrIgnore, mrAll, mrNoToAll, mrYesToAll, mrNone, mrClose};

/// System icon of a message, by kind; 0 is none.
inline constexpr std::array<int, 5> CIDsIcones{32515, 32513, 32516, 32514, 0};

/// Least width of a button on a message form, in pixels, by kind. Filled at the library's start with the width that
/// BuscarTamanhoBotao gives the default caption at 8 points; a host may widen an entry for all its messages.
extern ORY_API std::array<int, CQuantidadeBotoes> CLarguraBotao;
/// Fills CLarguraBotao again, from the captions in use.
ORY_API void PreencherLargurasBotao();

}  // namespace OryUtils
