#pragma once

#include "oryutils/forms/Formulario.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"
#include "oryutils/ui/interno/Disposicao.hpp"

#include <string_view>

namespace OryUtils {

/// A small form that asks for something: the prompt (label "Message"), what a derived form adds, OK and cancel.
class TFormularioPedido : public TFormulario {
public:
    void AoMudarTela(int AAntes, int AAgora) override;

protected:
    /// Raises what ExigirToolkit raises.
    TFormularioPedido(std::u16string_view ATitulo, std::u16string_view APergunta, const TTextosDialogos& ATextos);

    TRotulo& AdicionarRotulo(std::u16string_view ATexto);
    /// Adds the buttons, once everything else is there, and gives every control its place.
    void Concluir();
    /// OK was pressed: what cannot be answered is refused.
    virtual void Conferir() {}
    /// AControle gets the focus, the user reads AMensagem, and the form stays (EAbort).
    [[noreturn]] void Recusar(TControleFormulario& AControle, std::u16string_view AMensagem) const;
    void Confirmar(TObjeto* ASender);

    TPartesDoDialogo FPartes;
    const TTextosDialogos& FTextos;

private:
    TBotao& AdicionarBotao(TMsgDlgBtn ATipo);
    void AoConfirmar(TObjeto* ASender);

    TBotao* FConfirmar = nullptr;
};

}  // namespace OryUtils
