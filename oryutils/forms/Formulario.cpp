#include "oryutils/forms/Formulario.hpp"

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

constexpr std::uint16_t CTeclaEnter = 13;
constexpr std::uint16_t CTeclaEsc = 27;
constexpr std::uint16_t CTeclaF1 = 112;

TBotao* ComoBotao(TControleFormulario* AControle) {
    return AControle && AControle->GetTipo() == tcBotao ? static_cast<TBotao*>(AControle) : nullptr;
}

}  // namespace

TFormulario::TFormulario() = default;
TFormulario::~TFormulario() = default;

void TFormulario::Incorporar(std::unique_ptr<TControleFormulario> AControle) {
    FControles.push_back(std::move(AControle));
    if (FJanela) FJanela->Mudou(*FControles.back(), mdItens);
}

TControleFormulario* TFormulario::BuscarControle(std::u16string_view ANome) const noexcept {
    const auto achado =
        std::find_if(FControles.begin(), FControles.end(), [&](const auto& c) { return c->GetNome() == ANome; });
    return achado == FControles.end() ? nullptr : achado->get();
}

void TFormulario::ColocarAntes(const TControleFormulario& AControle, const TControleFormulario& ASeguinte) {
    const auto buscar = [this](const TControleFormulario& AQual) {
        return std::find_if(FControles.begin(), FControles.end(), [&](const auto& c) { return c.get() == &AQual; });
    };
    const auto controle = buscar(AControle);
    const auto seguinte = buscar(ASeguinte);
    if (controle == FControles.end() || seguinte == FControles.end()) return;
    if (controle < seguinte)
        std::rotate(controle, controle + 1, seguinte);
    else
        std::rotate(seguinte, controle, controle + 1);
    if (FJanela) FJanela->MudouFormulario(mdItens);
}

std::vector<TBotao*> TFormulario::GetBotoes() const {
    std::vector<TBotao*> botoes;
    for (const auto& controle : FControles)
        if (TBotao* botao = ComoBotao(controle.get())) botoes.push_back(botao);
    return botoes;
}

void TFormulario::SetTitulo(std::u16string_view ATitulo) {
    FTitulo = ATitulo;
    if (FJanela) FJanela->MudouFormulario(mdTexto);
}

void TFormulario::SetTamanhoCliente(int ALargura, int AAltura) {
    FCliente = {ALargura, AAltura};
    if (FJanela) FJanela->MudouFormulario(mdPosicao);
}

void TFormulario::SetPosicao(int ALeft, int ATop) {
    FPosicaoNaTela.Left = ALeft;
    FPosicaoNaTela.Top = ATop;
    if (FJanela) FJanela->MudouFormulario(mdPosicao);
}

void TFormulario::SetControleAtivo(TControleFormulario* AControle) {
    FControleAtivo = AControle;
    if (FJanela && AControle) FJanela->Mudou(*AControle, mdFoco);
}

void TFormulario::SetModalResult(int AResultado) {
    FModalResult = AResultado;
    if (FJanela) FJanela->ResultadoMudou();
}

void TFormulario::Fechar() {
    if (FJanela && FModalResult == mrNone) SetModalResult(mrCancel);
}

int TFormulario::ExecutarModal() {
    TToolkit& toolkit = ExigirToolkit();
    if (FJanela) throw Exception(u"O formulário já está sendo mostrado.");
    FModalResult = mrNone;
    struct TEncerramento {
        TFormulario& Formulario;
        ~TEncerramento() { Formulario.AoEncerrar(); }
    } encerramento{*this};
    return toolkit.ExecutarModal(*this);
}

bool TFormulario::TratarTecla(TTecla& ATecla) {
    AoIntervir();
    OnKeyDown(this, ATecla);
    if (ATecla.Tratada) return true;
    if (ATecla.Ctrl || ATecla.Alt || ATecla.Shift) return false;
    if (ATecla.Codigo == CTeclaF1 && OnAjuda) {
        PedirAjuda();
        return true;
    }
    const auto botoes = GetBotoes();
    const auto pressionar = [&](auto AEscolha) {
        const auto achado = std::find_if(botoes.begin(), botoes.end(),
                                         [&](const TBotao* b) { return AEscolha(b) && b->PodeReceberFoco(); });
        if (achado != botoes.end()) (*achado)->Clicar();
        return achado != botoes.end();
    };
    if (ATecla.Codigo == CTeclaEsc) {
        if (!pressionar([](const TBotao* b) { return b->GetCancelar(); })) Fechar();
        return true;
    }
    if (ATecla.Codigo == CTeclaEnter) {
        if (FControleAtivo && FControleAtivo->GetTipo() == tcMemorando) return false;
        if (TBotao* focado = ComoBotao(FControleAtivo)) {
            focado->Clicar();
            return true;
        }
        return pressionar([](const TBotao* b) { return b->GetPadrao(); });
    }
    return false;
}

void TFormulario::AoMudarTela(int AAntes, int AAgora) {
    if (AAntes == AAgora || AAntes <= 0) return;
    const auto escalar = [&](int APixels) { return static_cast<int>(1LL * APixels * AAgora / AAntes); };
    for (const auto& controle : FControles) {
        const TRetangulo& r = controle->GetRetangulo();
        controle->SetRetangulo({escalar(r.Left), escalar(r.Top), escalar(r.Width), escalar(r.Height)});
    }
    SetTamanhoCliente(escalar(FCliente.Largura), escalar(FCliente.Altura));
}

void TFormulario::AoRedimensionar(int ALargura, int AAltura) {
    if (FCliente == TTamanho{ALargura, AAltura}) return;
    FCliente = {ALargura, AAltura};
    OnResize(this);
}

}  // namespace OryUtils
