#include "oryutils/ui/interno/Variantes.hpp"

#include "oryutils/ui/interno/Medidas.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

// Pixels; the applications' forms count on them.
constexpr int CAlturaGrupo = 40;
constexpr int CAlturaOpcao = 20;
constexpr int CLarguraPorLetra = 4;
constexpr int CLarguraGrupo = 150;
constexpr int CDistanciaBotoes = 15;  // below what was added
constexpr int CEntreBotoes = 3;
constexpr int CCrescimentoMinimo = 100;
constexpr int CFolgaDaFila = 100;  // a form is this much wider than its row of buttons

// Dialog units.
constexpr int CAlturaCaixa = 10;
constexpr int CMarcaDaCaixa = 12;  // the square and its distance to the text

// Buttons in a row from AEsquerda, ADescida lower than they were; returns the sum of their widths.
int RedisporBotoes(const TFormulario& AFormulario, int AEsquerda, int ADescida) {
    TToolkit& toolkit = BuscarToolkit();
    int fila = 0;
    int esquerda = AEsquerda;
    for (TBotao* botao : AFormulario.GetBotoes()) {
        const int largura = CalcularLarguraBotao(toolkit.GetTamanhoFonte(), botao->GetTexto().size());
        botao->SetRetangulo({esquerda, botao->GetTop() + ADescida, largura, botao->GetHeight()});
        esquerda = botao->GetLeft() + largura + CEntreBotoes;
        fila += largura;
        toolkit.ProcessarMensagens();
    }
    return fila;
}

void Crescer(TFormulario& AFormulario, int ACrescimento, int AFila) {
    AFormulario.SetTamanhoCliente(std::max(AFormulario.GetLarguraCliente(), AFila + CFolgaDaFila),
                                  AFormulario.GetAlturaCliente() + ACrescimento);
}

}  // namespace

TGrupoOpcoes& AdicionarOpcoes(TFormularioMensagem& AFormulario, const std::vector<std::u16string>& AOpcoes,
                              int AOpcaoPadrao, const TTextosDialogos& ATextos) {
    const int altura = CAlturaGrupo + CAlturaOpcao * static_cast<int>(AOpcoes.size());
    const int crescimento = std::max(altura + CDistanciaBotoes, CCrescimentoMinimo);
    AFormulario.Dispor(crescimento);
    const auto fatos = BuscarFatosDoFormulario(AFormulario);

    auto& grupo = AFormulario.Adicionar<TGrupoOpcoes>();
    grupo.SetNome(u"Opcoes");
    grupo.SetTexto(ATextos.Buscar(tdOpcoes));
    grupo.SetQuebraLinha(true);
    std::size_t maior = 0;
    for (const std::u16string& opcao : AOpcoes) {
        grupo.AdicionarItem(opcao);
        maior = std::max(maior, opcao.size());
        BuscarToolkit().ProcessarMensagens();
    }
    const int largura = static_cast<int>(maior) * CLarguraPorLetra + CLarguraGrupo;
    grupo.SetRetangulo({fatos.PosicaoEsquerdaTexto, fatos.PosicaoTopoBotoes, largura, altura});
    grupo.SetIndice(AOpcaoPadrao);
    const int fila = std::max(RedisporBotoes(AFormulario, grupo.GetLeft(), altura + CDistanciaBotoes), largura);
    Crescer(AFormulario, crescimento, fila);
    return grupo;
}

TCaixaChecagem& AdicionarCaixaChecagem(TFormularioMensagem& AFormulario, std::u16string_view ATexto,
                                       TPosicaoCaixaChecagem APosicao) {
    const TToolkit& toolkit = BuscarToolkit();
    const TUnidades unidades(toolkit);
    const int altura = unidades.Vertical(CAlturaCaixa);
    const int crescimento = altura + CDistanciaBotoes;
    AFormulario.Dispor(crescimento);
    const auto fatos = BuscarFatosDoFormulario(AFormulario);

    auto& caixa = AFormulario.Adicionar<TCaixaChecagem>();
    caixa.SetNome(u"CaixaChecagem");
    caixa.SetTexto(ATexto);
    const int maximo = BuscarAreaUtil(toolkit).Largura - fatos.PosicaoEsquerdaTexto - CFolgaDaFila;
    const int largura =
        std::min(toolkit.MedirTexto(RemoverAtalho(ATexto), 0).Largura + unidades.Horizontal(CMarcaDaCaixa), maximo);
    const bool acima = APosicao != pccAbaixo;
    const int fila = RedisporBotoes(AFormulario, fatos.PosicaoEsquerdaTexto, acima ? crescimento : 0);
    const auto botoes = AFormulario.GetBotoes();
    const int abaixo = fatos.PosicaoTopoBotoes + (botoes.empty() ? 0 : botoes.front()->GetHeight()) + CDistanciaBotoes;
    caixa.SetRetangulo({fatos.PosicaoEsquerdaTexto, acima ? fatos.PosicaoTopoBotoes : abaixo, largura, altura});
    Crescer(AFormulario, crescimento, std::max(fila, largura));
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
