#include "oryutils/ui/interno/FormularioDetalhe.hpp"

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/interno/TextoCopiado.hpp"

namespace OryUtils {
namespace {

constexpr int CLarguraMinima = 250;  // dialog units

}  // namespace

TFormularioDetalhe::TFormularioDetalhe(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros,
                                       std::u16string_view ADetalhe, const TTextosDialogos& ATextos,
                                       std::shared_ptr<TFormulariosVivos> AVivos)
    : TFormularioMensagem(AParametros, ATextos, std::move(AVivos)), FTextos(ATextos) {
    FBotao = &Adicionar<TBotao>();
    FBotao->SetNome(u"Detalhes");
    FBotao->SetTexto(FTextos.Buscar(tdMostrarDetalhes));
    FBotao->SetHabilitado(!ADetalhe.empty());
    FBotao->OnClick = TEvento<TObjeto*>::De<&TFormularioDetalhe::AoClicar>(*this);

    FDetalhe = &Adicionar<TMemorando>();
    FDetalhe->SetNome(u"Detalhe");
    FDetalhe->SetSomenteLeitura(true);
    FDetalhe->SetTexto(ADetalhe);
    FDetalhe->SetVisivel(false);
    GetPartes().Detalhe = FDetalhe;
    GetPartes().LarguraMinima = CLarguraMinima;
    Dispor();
    OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TFormularioDetalhe::AoTeclar>(*this);
}

// The caption that is longer on screen decides the button's width; both fit then.
void TFormularioDetalhe::Dispor() {
    const std::u16string caption = FBotao->GetTexto();
    const auto medir = [&](TTextoDialogo ATexto) {
        return BuscarToolkit().MedirTexto(RemoverAtalho(FTextos.Buscar(ATexto)), 0).Largura;
    };
    FBotao->SetTexto(
        FTextos.Buscar(medir(tdMostrarDetalhes) >= medir(tdOcultarDetalhes) ? tdMostrarDetalhes : tdOcultarDetalhes));
    TFormularioMensagem::Dispor();
    FBotao->SetTexto(caption);
}

void TFormularioDetalhe::MostrarDetalhe(bool AMostrar) {
    if (FDetalhe->GetVisivel() == AMostrar) return;
    const int crescimento = GetPartes().CrescimentoDoDetalhe;
    FDetalhe->SetVisivel(AMostrar);
    FBotao->SetTexto(FTextos.Buscar(AMostrar ? tdOcultarDetalhes : tdMostrarDetalhes));
    SetTamanhoCliente(GetLarguraCliente(), GetAlturaCliente() + (AMostrar ? crescimento : -crescimento));
}

std::u16string TFormularioDetalhe::BuscarTextoCompleto() const {
    std::u16string texto = BuscarControle(CNomeDaMensagem)->GetTexto();
    if (!FDetalhe->GetTexto().empty()) texto += u"\r\n\r\n" + FDetalhe->GetTexto();
    return texto;
}

void TFormularioDetalhe::AoClicar(TObjeto*) { MostrarDetalhe(!FDetalhe->GetVisivel()); }

void TFormularioDetalhe::AoTeclar(TObjeto*, TTecla& ATecla) {
    if (!EhCtrlC(ATecla)) return;
    TToolkit& toolkit = BuscarToolkit();
    toolkit.Bipar();
    toolkit.CopiarParaAreaDeTransferencia(BuscarTextoCompleto());
    ATecla.Tratada = true;
}

int ExecutarFormularioDetalhe(const TOryUtilsDialogsFormDetalhesIOP& AParametros, std::u16string_view ATitulo,
                              const TTextosDialogos& ATextos, std::shared_ptr<TFormulariosVivos> AVivos,
                              bool ADetalheAberto) {
    TOryUtilsDialogsFormCustomizadoBaseIOP parametros;
    parametros.Titulo = ATitulo;
    parametros.TipoDialogo = AParametros.TipoDialogo;
    parametros.Mensagem = AParametros.Mensagem;
    for (const TDadosBotao& dados : CDadosBotao)
        if (AParametros.Botoes.Contem(dados.Tipo)) {
            parametros.Botoes.push_back(dados.Tipo);
            parametros.CaptionBotoes.push_back(ATextos.BuscarCaption(dados.Tipo));
        }
    if (parametros.Botoes.empty()) {
        parametros.Botoes = {mbOK};
        parametros.CaptionBotoes = {ATextos.BuscarCaption(mbOK)};
    }
    TFormularioDetalhe formulario(parametros, AParametros.MensagemDetalhe, ATextos, std::move(AVivos));
    if (ADetalheAberto) formulario.MostrarDetalhe(true);
    return formulario.ExecutarModal();
}

}  // namespace OryUtils
