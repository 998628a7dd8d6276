#include "oryutils/ui/interno/FormularioMensagem.hpp"

#include "oryutils/dates/OryUtilsDatas.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/Medidas.hpp"
#include "oryutils/ui/interno/TextoCopiado.hpp"

#include <algorithm>
#include <array>

namespace OryUtils {
namespace {

constexpr int CLadoIcone = 32;  // pixels at 96 per inch
constexpr int CPixelsPorPolegadaBase = 96;

// A form's default button, the first that it has.
constexpr std::array CPadroes{mrOk, mrYes, mrRetry};

int BuscarIdIcone(TMsgDlgType ATipo) {
    const auto indice = static_cast<std::size_t>(ATipo);
    return indice < CIDsIcones.size() ? CIDsIcones[indice] : 0;
}

// The host's least width for a button of that kind, known by the control's name.
int BuscarLarguraMinima(const TBotao& ABotao, const TToolkit& AToolkit) {
    const auto nome = std::find(CNomesBotao.begin(), CNomesBotao.end(), ABotao.GetNome());
    if (nome == CNomesBotao.end()) return 0;
    const int largura = CLarguraBotao[static_cast<std::size_t>(nome - CNomesBotao.begin())];
    return DividirArredondando(1LL * std::max(largura, 0) * AToolkit.GetPixelsPorPolegada(), CPixelsPorPolegadaBase);
}

}  // namespace

std::u16string BuscarMensagemComNota(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros,
                                     const TTextosDialogos& ATextos) {
    if (!AParametros.FecharMensagemAutomaticamente) return AParametros.Mensagem;
    const auto tempo = TOryUtilsDatas::ConverterMilisegundosParaTempo(AParametros.TempoFinalizacaoAutomatica, true);
    return AParametros.Mensagem + u"\r\n\r\n" + PreencherModelo(ATextos.Buscar(tdNotaFechamento), {tempo});
}

TOryUtilsDialogsInfoFormMensagemIOP BuscarFatosDoFormulario(const TFormulario& AFormulario) {
    TOryUtilsDialogsInfoFormMensagemIOP fatos;
    const int pontos = BuscarToolkit().GetTamanhoFonte();
    const auto botoes = AFormulario.GetBotoes();
    for (const TBotao* botao : botoes)
        fatos.LarguraTotalFormulario += CalcularLarguraBotao(pontos, botao->GetTexto().size()) + 3;
    if (!botoes.empty()) {
        fatos.PosicaoTopoBotoes = botoes.front()->GetTop();
        fatos.LarguraPrimeiroBotao = CalcularLarguraBotao(pontos, botoes.front()->GetTexto().size());
    }
    const TControleFormulario* mensagem = AFormulario.BuscarControle(CNomeMensagem);
    if (mensagem && mensagem->GetTipo() == tcRotulo) {
        fatos.PosicaoEsquerdaTexto = mensagem->GetLeft();
        fatos.LarguraTotalTextoFormulario = mensagem->GetWidth();
    }
    return fatos;
}

TFormularioMensagem::TFormularioMensagem(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros,
                                         const TTextosDialogos& ATextos, std::shared_ptr<TFormulariosVivos> AVivos)
    : FParametros(AParametros), FVivos(std::move(AVivos)) {
    FParametros.ValidarPropriedades();
    ExigirToolkit();
    SetTitulo(FParametros.Titulo);
    CriarControles();
    FMensagem->SetTexto(BuscarMensagemComNota(FParametros, ATextos));
    AplicarParametros(ATextos);
    EscolherBotaoPadrao();
    Dispor();
    OnShow = TEvento<TObjeto*>::De<&TFormularioMensagem::AoMostrar>(*this);
    OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TFormularioMensagem::AoTeclar>(*this);
    OnAjuda = EventoDeAjuda();
    if (FVivos) FVivos->push_back(this);
}

TFormularioMensagem::~TFormularioMensagem() {
    DesligarTemporizador();
    if (FVivos) std::erase(*FVivos, this);
}

void TFormularioMensagem::CriarControles() {
    if (const int id = BuscarIdIcone(FParametros.TipoDialogo)) {
        FIcone = &Adicionar<TIcone>();
        FIcone->SetNome(u"Image");
        FIcone->SetIdIcone(id);
    }
    FMensagem = &Adicionar<TRotulo>();
    FMensagem->SetNome(CNomeMensagem);
    FMensagem->SetQuebraLinha(true);
    const TMsgDlgButtons conjunto(FParametros.Botoes);
    for (const TDadosBotao& dados : CDadosBotao) {
        if (!conjunto.Contem(dados.Tipo)) continue;
        auto& botao = Adicionar<TBotao>();
        botao.SetNome(dados.Nome);
        botao.SetModalResult(dados.ModalResult);
    }
}

void TFormularioMensagem::AplicarParametros(const TTextosDialogos& ATextos) {
    // Buttons stand in kind order, captions and results in the order of the lists: the k-th of each meet.
    const auto botoes = GetBotoes();
    for (std::size_t k = 0; k < botoes.size(); ++k) {
        const TMsgDlgBtn tipo = FParametros.Botoes[k];
        botoes[k]->SetTexto(k < FParametros.CaptionBotoes.size() ? FParametros.CaptionBotoes[k]
                                                                 : ATextos.BuscarCaption(tipo));
        if (botoes.size() == 1 || !TMsgDlgButtons::EhConhecido(tipo)) continue;
        botoes[k]->SetModalResult(CModalResults[static_cast<std::size_t>(tipo)]);
        if (botoes[k]->GetModalResult() == FParametros.BotaoPadrao) SetControleAtivo(botoes[k]);
    }
    for (TBotao* botao : botoes)
        if (botao->GetModalResult() == mrNone)
            botao->OnClick = TEvento<TObjeto*>::De<&TFormularioMensagem::AoClicarAjuda>(*this);
}

void TFormularioMensagem::AoClicarAjuda(TObjeto*) { PedirAjuda(); }

void TFormularioMensagem::AoTeclar(TObjeto*, TTecla& ATecla) {
    if (!EhCtrlC(ATecla) || ATecla.ComSelecao) return;
    BuscarToolkit().CopiarParaAreaDeTransferencia(MontarTextoCopiado(*this));
    ATecla.Tratada = true;
}

// Enter and Esc follow what the buttons answer, not the kinds they were created for: Esc must never say yes.
void TFormularioMensagem::EscolherBotaoPadrao() {
    const auto botoes = GetBotoes();
    for (TBotao* botao : botoes) botao->SetCancelar(botao->GetModalResult() == mrCancel);
    auto* padrao = static_cast<TBotao*>(GetControleAtivo());
    for (const int resultado : CPadroes) {
        if (padrao) break;
        const auto achado = std::find_if(botoes.begin(), botoes.end(),
                                         [&](const TBotao* b) { return b->GetModalResult() == resultado; });
        if (achado != botoes.end()) padrao = *achado;
    }
    if (!padrao && !botoes.empty()) padrao = botoes.front();
    if (!padrao) return;
    padrao->SetPadrao(true);
    SetControleAtivo(padrao);
}

// Places label (or, for a text that does not fit, the memo that stands in for it); returns the bottom.
int TFormularioMensagem::DisporMensagem(TTamanho AMaximo, int AEsquerda) {
    const TToolkit& toolkit = BuscarToolkit();
    const int topo = TUnidades(toolkit).Vertical(CMargem);
    TTamanho tamanho = MedirTextoLimitado(toolkit, FMensagem->GetTexto(), AMaximo);
    const bool cabe = tamanho.Largura <= AMaximo.Largura && tamanho.Altura <= AMaximo.Altura;
    if (!cabe) tamanho = {AMaximo.Largura, std::min(tamanho.Altura, AMaximo.Altura)};
    FMensagem->SetRetangulo({AEsquerda, topo, tamanho.Largura, tamanho.Altura});
    FMensagem->SetVisivel(cabe);
    if (!cabe && !FRolagem) {
        FRolagem = &Adicionar<TMemorando>();
        FRolagem->SetNome(u"MessageMemo");
        FRolagem->SetSomenteLeitura(true);
        FRolagem->SetTexto(FMensagem->GetTexto());
    }
    if (FRolagem) {
        // Three lines at least, so that a single endless word can be scrolled in.
        const int altura = std::min(AMaximo.Altura, std::max(tamanho.Altura, 3 * MedirCaractere(toolkit).Altura));
        FRolagem->SetRetangulo({AEsquerda, topo, tamanho.Largura, altura});
        FRolagem->SetVisivel(!cabe);
        if (!cabe) return topo + altura;
    }
    return topo + tamanho.Altura;
}

void TFormularioMensagem::Dispor(int AReserva, int ALarguraMinima) {
    const TToolkit& toolkit = BuscarToolkit();
    const TUnidades unidades(toolkit);
    const TTamanho area = BuscarAreaUtil(toolkit);
    const int margem = unidades.Horizontal(CMargem);
    const int margemVertical = unidades.Vertical(CMargem);
    const int espaco = unidades.Horizontal(CEspacoEntreBotoes);
    const int alturaBotao = unidades.Vertical(CAlturaBotao);

    int esquerda = margem;
    int fundo = margemVertical;
    if (FIcone) {
        const int lado = DividirArredondando(1LL * CLadoIcone * toolkit.GetPixelsPorPolegada(), CPixelsPorPolegadaBase);
        FIcone->SetRetangulo({margem, margemVertical, lado, lado});
        esquerda += lado + margem;
        fundo += lado;
    }
    const TTamanho maximo{std::min(area.Largura / 2, area.Largura - esquerda - margem),
                          std::max(unidades.GetCaractere().Altura,
                                   area.Altura - 3 * margemVertical - alturaBotao - std::max(AReserva, 0))};
    fundo = std::max(fundo, DisporMensagem(maximo, esquerda));

    const auto botoes = GetBotoes();
    std::vector<int> larguras;
    int fila = 0;
    for (const TBotao* botao : botoes) {
        const int caption = toolkit.MedirTexto(RemoverAtalho(botao->GetTexto()), 0).Largura;
        const int largura = std::max({unidades.Horizontal(CLarguraMinimaBotao), BuscarLarguraMinima(*botao, toolkit),
                                      caption + 2 * unidades.Horizontal(CFolgaCaption)});
        larguras.push_back(std::min(largura, area.Largura - 2 * margem));
        fila += larguras.back() + (fila > 0 ? espaco : 0);
    }
    const int titulo = std::min(area.Largura / 2, toolkit.MedirTexto(GetTitulo().substr(0, 1024), 0).Largura +
                                                      unidades.Horizontal(CLarguraMinimaBotao));
    const int largura = std::max(
        {esquerda + FMensagem->GetWidth() + margem, fila + 2 * margem, titulo, std::min(ALarguraMinima, area.Largura)});
    int proximo = (largura - fila) / 2;
    for (std::size_t k = 0; k < botoes.size(); ++k) {
        botoes[k]->SetRetangulo({proximo, fundo + margemVertical, larguras[k], alturaBotao});
        proximo += larguras[k] + espaco;
    }
    SetTamanhoCliente(largura, fundo + 2 * margemVertical + alturaBotao);
}

void TFormularioMensagem::AoMostrar(TObjeto*) {
    if (!FParametros.FecharMensagemAutomaticamente || FParametros.TempoFinalizacaoAutomatica <= 0 || FTemporizador)
        return;
    FToolkit = &BuscarToolkit();
    FTemporizador = FToolkit->LigarTemporizador(FParametros.TempoFinalizacaoAutomatica, [this] { AoVencerTempo(); });
}

void TFormularioMensagem::AoVencerTempo() {
    DesligarTemporizador();
    Fechar();
}

void TFormularioMensagem::AoEncerrar() noexcept { DesligarTemporizador(); }

void TFormularioMensagem::DesligarTemporizador() noexcept {
    if (const auto temporizador = std::exchange(FTemporizador, 0)) FToolkit->DesligarTemporizador(temporizador);
}

}  // namespace OryUtils
