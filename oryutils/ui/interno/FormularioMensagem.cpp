#include "oryutils/ui/interno/FormularioMensagem.hpp"

#include "oryutils/dates/OryUtilsDatas.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/Medidas.hpp"
#include "oryutils/ui/interno/TextoCopiado.hpp"

#include <algorithm>
#include <array>

namespace OryUtils {
namespace {

// A form's default button, the first that it has.
constexpr std::array CPadroes{mrOk, mrYes, mrRetry};

constexpr int CSegundo = 1000;  // milliseconds

int CalcularSegundos(int AMilissegundos) { return AMilissegundos / CSegundo + (AMilissegundos % CSegundo > 0 ? 1 : 0); }

// As many digits as AValor has, each the widest of the dialog font.
std::u16string BuscarNumeroMaisLargo(int AValor) {
    const auto medir = [](char16_t ADigito) { return BuscarToolkit().MedirTexto({&ADigito, 1}, 0).Largura; };
    const std::u16string_view digitos = u"0123456789";
    return std::u16string(InteiroParaTexto(AValor).size(), *std::ranges::max_element(digitos, {}, medir));
}

int BuscarIdIcone(TMsgDlgType ATipo) {
    const auto indice = static_cast<std::size_t>(ATipo);
    return indice < CIDsIcones.size() ? CIDsIcones[indice] : 0;
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
    const TControleFormulario* mensagem = AFormulario.BuscarControle(CNomeDaMensagem);
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
    FPartes.Mensagem->SetTexto(BuscarMensagemComNota(FParametros, ATextos));
    AplicarParametros(ATextos);
    EscolherBotaoPadrao();
    Dispor();
    OnShow = TEvento<TObjeto*>::De<&TFormularioMensagem::AoMostrar>(*this);
    OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TFormularioMensagem::AoTeclar>(*this);
    OnAjuda = EventoDeAjuda();
    if (FVivos) FVivos->Formularios.push_back(this);
}

TFormularioMensagem::~TFormularioMensagem() {
    DesligarTemporizador();
    if (FVivos) std::erase(FVivos->Formularios, this);
}

void TFormularioMensagem::CriarControles() {
    if (const int id = BuscarIdIcone(FParametros.TipoDialogo)) {
        FPartes.Icone = &Adicionar<TIcone>();
        FPartes.Icone->SetNome(u"Image");
        FPartes.Icone->SetIdIcone(id);
    }
    FPartes.Mensagem = &Adicionar<TRotulo>();
    FPartes.Mensagem->SetNome(CNomeDaMensagem);
    FPartes.Mensagem->SetQuebraLinha(true);
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
    FPadrao = padrao;
    padrao->SetPadrao(true);
    SetControleAtivo(padrao);
}

// The button has room for the seconds from the start, so that it does not change while they tick away.
void TFormularioMensagem::Dispor() {
    const std::u16string complemento = FPadrao ? FPadrao->GetComplemento() : u"";
    if (ContaTempo()) MostrarSegundos(BuscarNumeroMaisLargo(CalcularSegundos(FParametros.TempoFinalizacaoAutomatica)));
    DisporDialogo(*this, FPartes);
    if (FPadrao) FPadrao->SetComplemento(complemento);
}

void TFormularioMensagem::AoMudarTela(int, int) { Dispor(); }

void TFormularioMensagem::AoMostrar(TObjeto*) {
    if (!FParametros.FecharMensagemAutomaticamente || FParametros.TempoFinalizacaoAutomatica <= 0 || FTemporizador)
        return;
    FVenceu = false;
    FToolkit = &BuscarToolkit();
    const int tempo = FParametros.TempoFinalizacaoAutomatica;
    if (!ContaTempo()) {
        FTemporizador = FToolkit->LigarTemporizador(tempo, [this] { AoVencerTempo(); });
        return;
    }
    FSegundos = CalcularSegundos(tempo);
    MostrarSegundos(InteiroParaTexto(FSegundos));
    FTemporizador = FToolkit->LigarTemporizador(tempo - (FSegundos - 1) * CSegundo, [this] { ContarSegundo(); });
}

bool TFormularioMensagem::ContaTempo() const noexcept {
    return FPadrao && FParametros.FecharMensagemAutomaticamente && FParametros.MostrarTempoRestante &&
           FParametros.TempoFinalizacaoAutomatica > 0;
}

void TFormularioMensagem::MostrarSegundos(std::u16string_view ASegundos) {
    FPadrao->SetComplemento(u"(" + std::u16string(ASegundos) + u")");
}

void TFormularioMensagem::ContarSegundo() {
    if (--FSegundos == 0) return AoVencerTempo();
    MostrarSegundos(InteiroParaTexto(FSegundos));
    DesligarTemporizador();
    FTemporizador = FToolkit->LigarTemporizador(CSegundo, [this] { ContarSegundo(); });
}

void TFormularioMensagem::AoIntervir() {
    if (FSegundos == 0) return;
    FSegundos = 0;
    DesligarTemporizador();
    FPadrao->SetComplemento(u"");
}

void TFormularioMensagem::AoVencerTempo() {
    DesligarTemporizador();
    FVenceu = GetModalResult() == mrNone;
    Fechar();
}

void TFormularioMensagem::AoEncerrar() noexcept {
    DesligarTemporizador();
    FSegundos = 0;
    if (FVivos) FVivos->UltimaPorTempo = FVenceu;
}

void TFormularioMensagem::DesligarTemporizador() noexcept {
    if (const auto temporizador = std::exchange(FTemporizador, 0)) FToolkit->DesligarTemporizador(temporizador);
}

}  // namespace OryUtils
