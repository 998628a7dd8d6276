#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/ui/OryUtilsControls.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsDialogs> GOryUtilsDialogs;

void TOryUtilsDialogs::Informacao(std::u16string_view AMensagem) {
    BuscarToolkit().MostrarMensagem(tmInformacao, u"Informação", AMensagem);
}

void TOryUtilsDialogs::Alerta(std::u16string_view AMensagem) {
    BuscarToolkit().MostrarMensagem(tmAlerta, u"Aviso", AMensagem);
}

void TOryUtilsDialogs::Erro(std::u16string_view AMensagem) {
    BuscarToolkit().MostrarMensagem(tmErro, u"Erro", AMensagem);
}

void IniciarInterface() {
    CosturaInterface() = {
        .Alerta = [](std::u16string_view AMensagem) { GOryUtilsDialogs->Alerta(AMensagem); },
        .Erro = [](std::u16string_view AMensagem) { GOryUtilsDialogs->Erro(AMensagem); },
        .ProcessarMensagens = [] { BuscarToolkit().ProcessarMensagens(); },
        .AtribuirFoco = [](TWinControl* AControle) { GOryUtilsControls->AtribuirFocoControle(AControle); }};
}

void FinalizarInterface() { CosturaInterface() = BuscarCosturaPadrao(); }

}  // namespace OryUtils
