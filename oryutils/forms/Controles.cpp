#include "oryutils/forms/Controles.hpp"

#include "oryutils/forms/Formulario.hpp"

#include <algorithm>

namespace OryUtils {

std::u16string RemoverAtalho(std::u16string_view ACaption) {
    std::u16string texto;
    texto.reserve(ACaption.size());
    for (std::size_t i = 0; i < ACaption.size(); ++i) {
        if (ACaption[i] == u'&' && ++i == ACaption.size()) break;
        texto += ACaption[i];
    }
    return texto;
}

char16_t BuscarLetraAtalho(std::u16string_view ACaption) noexcept {
    for (std::size_t i = 0; i + 1 < ACaption.size(); ++i)
        if (ACaption[i] == u'&' && ACaption[++i] != u'&') return ACaption[i];
    return 0;
}

TControleFormulario::~TControleFormulario() = default;

void TControleFormulario::Avisar(TMudanca AMudanca) {
    if (TJanela* janela = FFormulario.GetJanela()) janela->Mudou(*this, AMudanca);
}

void TControleFormulario::SetRetangulo(const TRetangulo& ARetangulo) {
    if (FRetangulo == ARetangulo) return;
    FRetangulo = ARetangulo;
    Avisar(mdPosicao);
}

void TControleFormulario::SetLeft(int AValor) { SetRetangulo({AValor, GetTop(), GetWidth(), GetHeight()}); }
void TControleFormulario::SetTop(int AValor) { SetRetangulo({GetLeft(), AValor, GetWidth(), GetHeight()}); }
void TControleFormulario::SetWidth(int AValor) { SetRetangulo({GetLeft(), GetTop(), AValor, GetHeight()}); }
void TControleFormulario::SetHeight(int AValor) { SetRetangulo({GetLeft(), GetTop(), GetWidth(), AValor}); }

void TControleFormulario::SetTexto(std::u16string_view ATexto) {
    if (FTexto == ATexto) return;
    FTexto = ATexto;
    Avisar(mdTexto);
}

void TControleFormulario::SetVisivel(bool AVisivel) {
    if (FVisivel == AVisivel) return;
    FVisivel = AVisivel;
    Avisar(mdEstado);
}

void TControleFormulario::SetHabilitado(bool AHabilitado) {
    if (FHabilitado == AHabilitado) return;
    FHabilitado = AHabilitado;
    Avisar(mdEstado);
}

bool TControleFormulario::PodeReceberFoco() const { return FVisivel && FHabilitado; }

void TControleFormulario::ReceberFoco() { FFormulario.SetControleAtivo(this); }

void TRotulo::SetQuebraLinha(bool AQuebra) {
    FQuebraLinha = AQuebra;
    Avisar(mdEstado);
}

void TIcone::SetIdIcone(int AId) {
    FIdIcone = AId;
    Avisar(mdEstado);
}

void TBotao::SetPadrao(bool APadrao) {
    FPadrao = APadrao;
    Avisar(mdEstado);
}

void TBotao::SetComplemento(std::u16string_view AComplemento) {
    if (FComplemento == AComplemento) return;
    FComplemento = AComplemento;
    Avisar(mdTexto);
}

std::u16string TBotao::GetLegenda() const {
    return FComplemento.empty() ? GetTexto() : GetTexto() + u" " + FComplemento;
}

void TBotao::Clicar() {
    if (!GetHabilitado()) return;
    OnClick(this);
    if (FModalResult != mrNone) GetFormulario().SetModalResult(FModalResult);
}

void TGrupoOpcoes::AdicionarItem(std::u16string_view AItem) {
    FItens.emplace_back(AItem);
    Avisar(mdItens);
}

void TGrupoOpcoes::SetIndice(int AIndice) {
    const int indice = AIndice >= 0 && AIndice < static_cast<int>(FItens.size()) ? AIndice : -1;
    if (FIndice == indice) return;
    FIndice = indice;
    Avisar(mdSelecao);
}

void TCaixaChecagem::SetMarcada(bool AMarcada) {
    if (FMarcada == AMarcada) return;
    FMarcada = AMarcada;
    Avisar(mdSelecao);
}

void TCaixaEdicao::SelecionarTudo() {
    FSelecionarTudo = true;
    Avisar(mdSelecao);
}

void TCaixaEdicao::SetCampo(TField& ACampo) {
    FCampo = &ACampo;
    FFormatos = &FormatSettings();
}

void TMemorando::SetSomenteLeitura(bool ASomenteLeitura) {
    if (FSomenteLeitura == ASomenteLeitura) return;
    FSomenteLeitura = ASomenteLeitura;
    Avisar(mdEstado);
}

void TProgresso::SetPercentual(double APercentual) {
    const double percentual = APercentual >= 0 ? std::min(APercentual, 100.0) : -1;
    if (FPercentual == percentual) return;
    FPercentual = percentual;
    Avisar(mdSelecao);
}

void TListaEscolha::SetItens(std::vector<std::u16string> AItens) {
    FItens = std::move(AItens);
    FEscolhidos.clear();
    Avisar(mdItens);
}

void TListaEscolha::SetEscolhidos(std::vector<int> AEscolhidos) {
    const int total = static_cast<int>(FItens.size());
    std::erase_if(AEscolhidos, [&](int i) { return i < 0 || i >= total; });
    std::ranges::sort(AEscolhidos);
    AEscolhidos.erase(std::unique(AEscolhidos.begin(), AEscolhidos.end()), AEscolhidos.end());
    if (!FVarios && AEscolhidos.size() > 1) AEscolhidos.resize(1);
    if (FEscolhidos == AEscolhidos) return;
    FEscolhidos = std::move(AEscolhidos);
    Avisar(mdSelecao);
}

}  // namespace OryUtils
