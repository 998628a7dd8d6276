#include "oryutils/ui/interno/FormularioPedido.hpp"

#include "oryutils/forms/NomeFalado.hpp"
#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"
#include "oryutils/ui/interno/FormularioMensagem.hpp"
#include "oryutils/ui/interno/Variantes.hpp"

namespace OryUtils {
namespace {

constexpr int CLarguraPedido = 190;  // client area, dialog units

}  // namespace

TFormularioPedido::TFormularioPedido(std::u16string_view ATitulo, std::u16string_view APergunta,
                                     const TTextosDialogos& ATextos)
    : FTextos(ATextos) {
    ExigirToolkit();
    SetTitulo(ATitulo);
    OnAjuda = EventoDeAjuda();
    FPartes.Mensagem = &AdicionarRotulo(APergunta);
    FPartes.Mensagem->SetNome(CNomeDaMensagem);
    FPartes.Mensagem->SetQuebraLinha(true);
    FPartes.LarguraMinima = CLarguraPedido;
    FPartes.TextoNaLargura = true;
}

TRotulo& TFormularioPedido::AdicionarRotulo(std::u16string_view ATexto) {
    auto& rotulo = Adicionar<TRotulo>();
    rotulo.SetTexto(ATexto);
    return rotulo;
}

TBotao& TFormularioPedido::AdicionarBotao(TMsgDlgBtn ATipo) {
    auto& botao = Adicionar<TBotao>();
    botao.SetNome(CNomesBotao[ATipo]);
    botao.SetTexto(FTextos.BuscarCaption(ATipo));
    botao.SetModalResult(CModalResults[ATipo]);
    return botao;
}

void TFormularioPedido::Concluir() {
    FConfirmar = &AdicionarBotao(mbOK);
    FConfirmar->SetPadrao(true);
    FConfirmar->OnClick = TEvento<TObjeto*>::De<&TFormularioPedido::AoConfirmar>(*this);
    AdicionarBotao(mbCancel).SetCancelar(true);
    DisporDialogo(*this, FPartes);
}

void TFormularioPedido::AoMudarTela(int, int) { DisporDialogo(*this, FPartes); }

void TFormularioPedido::AoConfirmar(TObjeto*) { Conferir(); }

void TFormularioPedido::Confirmar(TObjeto*) { FConfirmar->Clicar(); }

void TFormularioPedido::Recusar(TControleFormulario& AControle, std::u16string_view AMensagem) const {
    AControle.ReceberFoco();
    // Not by Alerta, which the notification centre may keep for later.
    TFormularioMensagem(
        MontarParametros<TOryUtilsDialogsFormCustomizadoIOP>(AMensagem, mtWarning, {mbOK}, mrNone,
                                                             FTextos.Buscar(tdAviso), {FTextos.BuscarCaption(mbOK)}),
        FTextos, nullptr)
        .ExecutarModal();
    Abort();
}

}  // namespace OryUtils
