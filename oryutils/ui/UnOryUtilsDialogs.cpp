#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/runtime/Costura.hpp"
#include "oryutils/ui/OryUtilsControls.hpp"

namespace OryUtils {

TInstanciaGlobal<TOryUtilsDialogs> GOryUtilsDialogs;

namespace {

void Mostrar(std::u16string_view ATitulo, std::u16string_view AMensagem) {
    TFormulario formulario;
    formulario.SetTitulo(ATitulo);
    auto& texto = formulario.Adicionar<TRotulo>();
    texto.SetNome(u"Message");
    texto.SetTexto(AMensagem);
    formulario.ExecutarModal();
}

}  // namespace

void TOryUtilsDialogs::Informacao(std::u16string_view AMensagem) { Mostrar(u"Informação", AMensagem); }
void TOryUtilsDialogs::Alerta(std::u16string_view AMensagem) { Mostrar(u"Aviso", AMensagem); }
void TOryUtilsDialogs::Erro(std::u16string_view AMensagem) { Mostrar(u"Erro", AMensagem); }

void IniciarInterface() {
    CosturaInterface() = {
        .Alerta = [](std::u16string_view AMensagem) { GOryUtilsDialogs->Alerta(AMensagem); },
        .Erro = [](std::u16string_view AMensagem) { GOryUtilsDialogs->Erro(AMensagem); },
        .ProcessarMensagens = [] { BuscarToolkit().ProcessarMensagens(); },
        .AtribuirFoco = [](TWinControl* AControle) { GOryUtilsControls->AtribuirFocoControle(AControle); }};
}

void FinalizarInterface() { CosturaInterface() = BuscarCosturaPadrao(); }

}  // namespace OryUtils
