#pragma once

#include "oryutils/ui/interno/FormularioMensagem.hpp"

#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Adds the options group between the message and the buttons. Lets the message loop run between additions.
TGrupoOpcoes& AdicionarOpcoes(TFormularioMensagem& AFormulario, const std::vector<std::u16string>& AOpcoes,
                              int AOpcaoPadrao, const TTextosDialogos& ATextos);

/// Adds one check box above or below the buttons.
TCaixaChecagem& AdicionarCaixaChecagem(TFormularioMensagem& AFormulario, std::u16string_view ATexto,
                                       TPosicaoCaixaChecagem APosicao);

/// Build the variant, run it modally, and answer.
TOryUtilsDialogsRetornoMensagemOpcoesIOP ExecutarComOpcoes(
    const TOryUtilsDialogsFormCustomizadoComOpcoesIOP& AParametros, const TTextosDialogos& ATextos,
    std::shared_ptr<TFormulariosVivos> AVivos);
TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP ExecutarComCaixaChecagem(
    const TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP& AParametros, const TTextosDialogos& ATextos,
    std::shared_ptr<TFormulariosVivos> AVivos);

TOryUtilsDialogsRetornoMensagemLembradaIOP ExecutarLembrada(
    const TOryUtilsDialogsFormCustomizadoLembradaIOP& AParametros, const TTextosDialogos& ATextos,
    std::shared_ptr<TFormulariosVivos> AVivos);

/// Positional arguments as parameters.
template <std::derived_from<TOryUtilsDialogsFormCustomizadoBaseIOP> T>
T MontarParametros(std::u16string_view AMensagem, TMsgDlgType ATipo, const std::vector<TMsgDlgBtn>& ABotoes,
                   int APadrao, std::u16string_view ATitulo, const std::vector<std::u16string>& ACaptions) {
    T parametros;
    parametros.Mensagem = AMensagem;
    parametros.TipoDialogo = ATipo;
    parametros.Botoes = ABotoes;
    parametros.BotaoPadrao = APadrao;
    parametros.Titulo = ATitulo;
    parametros.CaptionBotoes = ACaptions;
    return parametros;
}

}  // namespace OryUtils
