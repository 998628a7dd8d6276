#include "oryutils/ui/UnOryUtilsDialogsAndamento.hpp"

#include "oryutils/ui/interno/FormularioAndamento.hpp"

namespace OryUtils {

TOryUtilsDialogsAndamento::TOryUtilsDialogsAndamento(const TOryUtilsDialogsAndamentoIOP& AParametros)
    : FFormulario(std::make_unique<TFormularioAndamento>(AParametros)) {}
TOryUtilsDialogsAndamento::~TOryUtilsDialogsAndamento() = default;

bool TOryUtilsDialogsAndamento::Atualizar(double APercentual, std::u16string_view ATexto) {
    FFormulario->Anotar(ATexto);
    return Atualizar(APercentual);
}

bool TOryUtilsDialogsAndamento::Atualizar(double APercentual) {
    FFormulario->Anotar(APercentual);
    return Atualizar();
}

bool TOryUtilsDialogsAndamento::Atualizar(std::u16string_view ATexto) {
    FFormulario->Anotar(ATexto);
    return Atualizar();
}

bool TOryUtilsDialogsAndamento::Atualizar() {
    FFormulario->Atualizar();
    return !FoiCancelado();
}

bool TOryUtilsDialogsAndamento::FoiCancelado() const noexcept { return FFormulario->FoiCancelado(); }

}  // namespace OryUtils
