#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace OryUtils {

/// What a customised message is made of. All of it is input; the caller creates and keeps it.
struct ORY_API TOryUtilsDialogsFormCustomizadoBaseIOP {
    std::u16string Titulo{};
    /// Modal result of the button that gets the focus. When no button has it, the form chooses: OK, else Yes, else
    /// Retry, else the first one. 0 is the modal result of the help button.
    int BotaoPadrao = mrNone;
    TMsgDlgType TipoDialogo = mtWarning;
    std::u16string Mensagem{};
    /// Required. In display order.
    std::vector<TMsgDlgBtn> Botoes{};
    /// Required. One for each entry of Botoes, in the same order; entries that are missing at the end keep the usual
    /// caption of their kind.
    std::vector<std::u16string> CaptionBotoes{};
    bool FecharMensagemAutomaticamente = false;
    /// Milliseconds until an unanswered message closes; 0 or less leaves it open.
    std::int32_t TempoFinalizacaoAutomatica = 0;
    /// A message that closes by itself tells the seconds that are left on its default button: "OK (5)". The first key
    /// or click on the form ends that for good: it then waits for its answer.
    bool MostrarTempoRestante = false;

    /// Copies every property.
    void Assign(const TOryUtilsDialogsFormCustomizadoBaseIOP& AOrigem) { *this = AOrigem; }
    /// Raises Exception "TOryUtilsDialogsFormCustomizadoIOP.Botoes: preenchimento obrigatório." when Botoes is empty,
    /// and the same of CaptionBotoes.
    void ValidarPropriedades() const;
    bool operator==(const TOryUtilsDialogsFormCustomizadoBaseIOP&) const = default;
};

struct TOryUtilsDialogsFormCustomizadoIOP : TOryUtilsDialogsFormCustomizadoBaseIOP {
    using TOryUtilsDialogsFormCustomizadoBaseIOP::Assign;
    void Assign(const TOryUtilsDialogsFormCustomizadoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsFormCustomizadoIOP&) const = default;
};

/// A message with a list of options of which the user chooses one.
struct TOryUtilsDialogsFormCustomizadoComOpcoesIOP : TOryUtilsDialogsFormCustomizadoIOP {
    /// Option chosen beforehand, from 0; outside the list (-1) none is.
    std::int32_t OpcaoPadrao = 0;
    std::vector<std::u16string> OpcoesMensagem{};

    using TOryUtilsDialogsFormCustomizadoIOP::Assign;
    void Assign(const TOryUtilsDialogsFormCustomizadoComOpcoesIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsFormCustomizadoComOpcoesIOP&) const = default;
};

/// A message with one check box.
struct TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP : TOryUtilsDialogsFormCustomizadoIOP {
    TPosicaoCaixaChecagem PosicaoCaixaChecagem = pccAcima;
    std::u16string TextoCaixaChecagem{};

    using TOryUtilsDialogsFormCustomizadoIOP::Assign;
    void Assign(const TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP&) const = default;
};

/// A message whose answer the user may have remembered, by the check box "Não perguntar novamente".
struct ORY_API TOryUtilsDialogsFormCustomizadoLembradaIOP : TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP {
    /// Required. Name under which the answer is remembered; it need be unique within the program alone.
    std::u16string Chave{};

    using TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP::Assign;
    void Assign(const TOryUtilsDialogsFormCustomizadoLembradaIOP& AOrigem) { *this = AOrigem; }
    /// That of the others, and raises Exception "TOryUtilsDialogsFormCustomizadoLembradaIOP.Chave: preenchimento
    /// obrigatório." when Chave is blank.
    void ValidarPropriedades() const;
    bool operator==(const TOryUtilsDialogsFormCustomizadoLembradaIOP&) const = default;
};

/// A customised message with a detail text that the user may open.
struct ORY_API TOryUtilsDialogsFormCustomizadoComDetalhesIOP : TOryUtilsDialogsFormCustomizadoBaseIOP {
    std::int32_t ContextoAjuda = 0;
    std::u16string MensagemDetalhe{};

    /// Botoes as a set.
    TMsgDlgButtons GetListaDeBotoes() const { return TMsgDlgButtons(Botoes); }
    using TOryUtilsDialogsFormCustomizadoBaseIOP::Assign;
    void Assign(const TOryUtilsDialogsFormCustomizadoComDetalhesIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsFormCustomizadoComDetalhesIOP&) const = default;
};

/// A message with details and the usual captions.
struct TOryUtilsDialogsFormDetalhesIOP {
    std::u16string Mensagem{};
    std::u16string MensagemDetalhe{};
    TMsgDlgType TipoDialogo = mtInformation;
    /// Empty shows the OK button alone.
    TMsgDlgButtons Botoes{};

    void Assign(const TOryUtilsDialogsFormDetalhesIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsFormDetalhesIOP&) const = default;
};

/// A progress dialog.
struct TOryUtilsDialogsAndamentoIOP {
    std::u16string Titulo{};
    std::u16string Mensagem{};    ///< the first text
    bool PermiteCancelar = true;  ///< by a button, Esc or the window's close button

    void Assign(const TOryUtilsDialogsAndamentoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsAndamentoIOP&) const = default;
};

/// Answer of a message with options.
struct TOryUtilsDialogsRetornoMensagemOpcoesIOP {
    std::int32_t IndiceOpcao = -1;  ///< chosen option from 0; -1 for none
    int RetornoMensagem = mrNone;   ///< modal result

    void Assign(const TOryUtilsDialogsRetornoMensagemOpcoesIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsRetornoMensagemOpcoesIOP&) const = default;
};

/// Answer of a message with a check box.
struct TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP {
    bool CaixaChecagem = false;    ///< state of the check box
    int RetornoMensagem = mrNone;  ///< modal result

    void Assign(const TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP&) const = default;
};

/// Answer of a message that may be remembered.
struct TOryUtilsDialogsRetornoMensagemLembradaIOP {
    int RetornoMensagem = mrNone;  ///< modal result
    bool FoiMostrada = false;      ///< false: the remembered answer, without asking
    bool FoiLembrada = false;      ///< this answer is remembered, now or since before

    void Assign(const TOryUtilsDialogsRetornoMensagemLembradaIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsRetornoMensagemLembradaIOP&) const = default;
};

/// Layout facts of a built message form, in pixels.
struct TOryUtilsDialogsInfoFormMensagemIOP {
    int PosicaoEsquerdaTexto = 0;         ///< left of the label "Message"; 0 without one
    int LarguraPrimeiroBotao = 0;         ///< by BuscarTamanhoBotao
    int LarguraTotalTextoFormulario = 0;  ///< width of the label "Message"; 0 without one
    int LarguraTotalFormulario = 0;       ///< sum over the buttons of BuscarTamanhoBotao + 3
    int PosicaoTopoBotoes = 0;            ///< top of the first button; 0 without buttons

    void Assign(const TOryUtilsDialogsInfoFormMensagemIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsInfoFormMensagemIOP&) const = default;
};

}  // namespace OryUtils
