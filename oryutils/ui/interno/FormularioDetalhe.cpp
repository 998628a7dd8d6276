#include "oryutils/ui/interno/FormularioDetalhe.hpp"

#include "oryutils/ui/interno/Medidas.hpp"
#include "oryutils/ui/interno/TextoCopiado.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

// Dialog units.
constexpr int CLarguraMinima = 250;
constexpr int CAlturaDetalhe = 100;

}  // namespace

TFormularioDetalhe::TFormularioDetalhe(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros,
                                       std::u16string_view ADetalhe, const TTextosDialogos& ATextos,
                                       std::shared_ptr<TFormulariosVivos> AVivos)
    : TFormularioMensagem(AParametros, ATextos, std::move(AVivos)), FTextos(ATextos) {
    const TToolkit& toolkit = BuscarToolkit();
    const TUnidades unidades(toolkit);
    // The caption that is longer on screen decides the button's width; both fit then.
    const auto& mostrar = FTextos.Buscar(tdMostrarDetalhes);
    const auto& ocultar = FTextos.Buscar(tdOcultarDetalhes);
    const auto medir = [&](const std::u16string& ACaption) { return toolkit.MedirTexto(ACaption, 0).Largura; };
    FBotao = &Adicionar<TBotao>();
    FBotao->SetNome(u"Detalhes");
    FBotao->SetTexto(medir(mostrar) >= medir(ocultar) ? mostrar : ocultar);
    FBotao->SetHabilitado(!ADetalhe.empty());
    FBotao->OnClick = TEvento<TObjeto*>::De<&TFormularioDetalhe::AoClicar>(*this);

    const int altura = std::min(unidades.Vertical(CAlturaDetalhe), BuscarAreaUtil(toolkit).Altura / 3);
    const int margem = unidades.Horizontal(CMargem);
    FCrescimento = altura + unidades.Vertical(CMargem);
    Dispor(FCrescimento, unidades.Horizontal(CLarguraMinima));
    FBotao->SetTexto(mostrar);

    FDetalhe = &Adicionar<TMemorando>();
    FDetalhe->SetNome(u"Detalhe");
    FDetalhe->SetSomenteLeitura(true);
    FDetalhe->SetTexto(ADetalhe);
    FDetalhe->SetVisivel(false);
    FDetalhe->SetRetangulo({margem, GetAlturaCliente(), GetLarguraCliente() - 2 * margem, altura});
    OnKeyDown = TEvento<TObjeto*, TTecla&>::De<&TFormularioDetalhe::AoTeclar>(*this);
}

void TFormularioDetalhe::MostrarDetalhe(bool AMostrar) {
    if (FDetalhe->GetVisivel() == AMostrar) return;
    FDetalhe->SetVisivel(AMostrar);
    FBotao->SetTexto(FTextos.Buscar(AMostrar ? tdOcultarDetalhes : tdMostrarDetalhes));
    SetTamanhoCliente(GetLarguraCliente(), GetAlturaCliente() + (AMostrar ? FCrescimento : -FCrescimento));
}

std::u16string TFormularioDetalhe::BuscarTextoCompleto() const {
    std::u16string texto = BuscarControle(CNomeMensagem)->GetTexto();
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
