#include "oryutils/ui/interno/FormularioEntrada.hpp"

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/Medidas.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

// Dialog units.
constexpr int CLarguraEntrada = 190;  // client area
constexpr int CAlturaEdicao = 14;
constexpr int CDistanciaPergunta = 3;  // prompt to edit box

TBotao& AdicionarBotao(TFormulario& AFormulario, TMsgDlgBtn ATipo, const TTextosDialogos& ATextos) {
    auto& botao = AFormulario.Adicionar<TBotao>();
    botao.SetNome(CNomesBotao[ATipo]);
    botao.SetTexto(ATextos.BuscarCaption(ATipo));
    botao.SetModalResult(CModalResults[ATipo]);
    return botao;
}

}  // namespace

bool ExecutarFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor,
                               const TTextosDialogos& ATextos) {
    const TToolkit& toolkit = ExigirToolkit();
    const TUnidades unidades(toolkit);
    const TTamanho area = BuscarAreaUtil(toolkit);
    const int margem = unidades.Horizontal(CMargem);
    const int margemVertical = unidades.Vertical(CMargem);
    const int alturaBotao = unidades.Vertical(CAlturaBotao);
    const int espaco = unidades.Horizontal(CEspacoEntreBotoes);
    const int util = std::min(unidades.Horizontal(CLarguraEntrada), area.Largura) - 2 * margem;

    TFormulario formulario;
    formulario.SetTitulo(ATitulo);
    formulario.OnAjuda = EventoDeAjuda();
    auto& pergunta = formulario.Adicionar<TRotulo>();
    pergunta.SetNome(u"Message");
    pergunta.SetTexto(APergunta);
    pergunta.SetQuebraLinha(true);
    const int alturaMaxima = area.Altura - 3 * margemVertical - unidades.Vertical(CDistanciaPergunta) -
                             unidades.Vertical(CAlturaEdicao) - alturaBotao;
    const int alturaPergunta =
        std::min(MedirTextoLimitado(toolkit, APergunta, {util, alturaMaxima}).Altura, alturaMaxima);
    pergunta.SetRetangulo({margem, margemVertical, util, alturaPergunta});

    auto& edicao = formulario.Adicionar<TCaixaEdicao>();
    edicao.SetNome(u"Valor");
    edicao.SetTexto(AValor);
    edicao.SelecionarTudo();
    edicao.SetRetangulo({margem, margemVertical + alturaPergunta + unidades.Vertical(CDistanciaPergunta), util,
                         unidades.Vertical(CAlturaEdicao)});
    formulario.SetControleAtivo(&edicao);

    auto& ok = AdicionarBotao(formulario, mbOK, ATextos);
    ok.SetPadrao(true);
    auto& cancelar = AdicionarBotao(formulario, mbCancel, ATextos);
    cancelar.SetCancelar(true);
    const int caption = std::max(toolkit.MedirTexto(RemoverAtalho(ok.GetTexto()), 0).Largura,
                                 toolkit.MedirTexto(RemoverAtalho(cancelar.GetTexto()), 0).Largura);
    const int largura = std::min((util - espaco) / 2, std::max(caption + 2 * unidades.Horizontal(CFolgaCaption),
                                                               unidades.Horizontal(CLarguraMinimaBotao)));
    const int topo = edicao.GetTop() + edicao.GetHeight() + margemVertical;
    const int esquerda = margem + (util - 2 * largura - espaco) / 2;
    ok.SetRetangulo({esquerda, topo, largura, alturaBotao});
    cancelar.SetRetangulo({esquerda + largura + espaco, topo, largura, alturaBotao});
    formulario.SetTamanhoCliente(util + 2 * margem, topo + alturaBotao + margemVertical);

    if (formulario.ExecutarModal() != mrOk) return false;
    AValor = edicao.GetTexto();
    return true;
}

}  // namespace OryUtils
