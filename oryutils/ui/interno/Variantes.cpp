#include "oryutils/ui/interno/Variantes.hpp"

#include "oryutils/forms/Toolkit.hpp"

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

}  // namespace OryUtils
