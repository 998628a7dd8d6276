#include "oryutils/ui/interno/Variantes.hpp"

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/interno/RespostasLembradas.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

// What was added is reached by Tab, and read, before the buttons.
void IncluirAntesDosBotoes(TFormularioMensagem& AFormulario, const TControleFormulario& AControle) {
    const auto botoes = AFormulario.GetBotoes();
    if (!botoes.empty()) AFormulario.ColocarAntes(AControle, *botoes.front());
}

// The buttons have moved; the host's windows may draw themselves meanwhile.
void Redispor(TFormularioMensagem& AFormulario) {
    AFormulario.Dispor();
    for (std::size_t i = 0; i < AFormulario.GetBotoes().size(); ++i) BuscarToolkit().ProcessarMensagens();
}

}  // namespace

TGrupoOpcoes& AdicionarOpcoes(TFormularioMensagem& AFormulario, const std::vector<std::u16string>& AOpcoes,
                              int AOpcaoPadrao, const TTextosDialogos& ATextos) {
    auto& grupo = AFormulario.Adicionar<TGrupoOpcoes>();
    grupo.SetNome(u"Opcoes");
    grupo.SetTexto(ATextos.Buscar(tdOpcoes));
    grupo.SetQuebraLinha(true);
    for (const std::u16string& opcao : AOpcoes) {
        grupo.AdicionarItem(opcao);
        BuscarToolkit().ProcessarMensagens();
    }
    grupo.SetIndice(AOpcaoPadrao);
    IncluirAntesDosBotoes(AFormulario, grupo);
    AFormulario.GetPartes().Grupo = &grupo;
    Redispor(AFormulario);
    return grupo;
}

TCaixaChecagem& AdicionarCaixaChecagem(TFormularioMensagem& AFormulario, std::u16string_view ATexto,
                                       TPosicaoCaixaChecagem APosicao) {
    auto& caixa = AFormulario.Adicionar<TCaixaChecagem>();
    caixa.SetNome(u"CaixaChecagem");
    caixa.SetTexto(ATexto);
    const bool abaixo = APosicao == pccAbaixo;
    if (!abaixo) IncluirAntesDosBotoes(AFormulario, caixa);
    AFormulario.GetPartes().Caixa = &caixa;
    AFormulario.GetPartes().CaixaAbaixo = abaixo;
    Redispor(AFormulario);
    return caixa;
}

TOryUtilsDialogsRetornoMensagemOpcoesIOP ExecutarComOpcoes(
    const TOryUtilsDialogsFormCustomizadoComOpcoesIOP& AParametros, const TTextosDialogos& ATextos,
    std::shared_ptr<TFormulariosVivos> AVivos) {
    TFormularioMensagem formulario(AParametros, ATextos, std::move(AVivos));
    const auto& grupo = AdicionarOpcoes(formulario, AParametros.OpcoesMensagem, AParametros.OpcaoPadrao, ATextos);
    const int resultado = formulario.ExecutarModal();
    return {.IndiceOpcao = grupo.GetIndice(), .RetornoMensagem = resultado};
}

TOryUtilsDialogsRetornoMensagemCaixaChecagemIOP ExecutarComCaixaChecagem(
    const TOryUtilsDialogsFormCustomizadoCaixaChecagemIOP& AParametros, const TTextosDialogos& ATextos,
    std::shared_ptr<TFormulariosVivos> AVivos) {
    TFormularioMensagem formulario(AParametros, ATextos, std::move(AVivos));
    const auto& caixa =
        AdicionarCaixaChecagem(formulario, AParametros.TextoCaixaChecagem, AParametros.PosicaoCaixaChecagem);
    const int resultado = formulario.ExecutarModal();
    return {.CaixaChecagem = caixa.GetMarcada(), .RetornoMensagem = resultado};
}

TOryUtilsDialogsRetornoMensagemLembradaIOP ExecutarLembrada(
    const TOryUtilsDialogsFormCustomizadoLembradaIOP& AParametros, const TTextosDialogos& ATextos,
    std::shared_ptr<TFormulariosVivos> AVivos) {
    AParametros.ValidarPropriedades();
    ExigirToolkit();
    // What a button of this message answers, and no way of leaving it without an answer.
    const auto serve = [&](int AResposta) {
        return AResposta != mrNone && AResposta != mrCancel &&
               std::ranges::any_of(AParametros.Botoes, [&](TMsgDlgBtn b) {
                   return TMsgDlgButtons::EhConhecido(b) && CModalResults[static_cast<std::size_t>(b)] == AResposta;
               });
    };
    if (const auto lembrada = BuscarRespostaLembrada(AParametros.Chave); lembrada && serve(*lembrada))
        return {.RetornoMensagem = *lembrada, .FoiMostrada = false, .FoiLembrada = true};
    auto parametros = AParametros;
    if (parametros.TextoCaixaChecagem.empty()) parametros.TextoCaixaChecagem = ATextos.Buscar(tdNaoPerguntarNovamente);
    const auto retorno = ExecutarComCaixaChecagem(parametros, ATextos, std::move(AVivos));
    const bool lembrar = retorno.CaixaChecagem && serve(retorno.RetornoMensagem);
    return {.RetornoMensagem = retorno.RetornoMensagem,
            .FoiMostrada = true,
            .FoiLembrada = lembrar && LembrarResposta(AParametros.Chave, retorno.RetornoMensagem)};
}

}  // namespace OryUtils
