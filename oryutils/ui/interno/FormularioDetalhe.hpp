#pragma once

#include "oryutils/ui/interno/FormularioMensagem.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace OryUtils {

/// A message form with one more button, "Mostrar Detalhes" / "Ocultar Detalhes", that shows or hides a memo with the
/// detail text below the buttons. Ctrl+C with no other modifier beeps and copies message and detail to the clipboard,
/// also while the memo has the focus. Without a detail text the button is disabled.
class TFormularioDetalhe final : public TFormularioMensagem {
public:
    TFormularioDetalhe(const TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros, std::u16string_view ADetalhe,
                       const TTextosDialogos& ATextos, std::shared_ptr<TFormulariosVivos> AVivos);

    void MostrarDetalhe(bool AMostrar);
    void Dispor() override;
    /// What Ctrl+C copies: the message, a blank line, the detail.
    std::u16string BuscarTextoCompleto() const;

private:
    void AoClicar(TObjeto* ASender);
    void AoTeclar(TObjeto* ASender, TTecla& ATecla);

    const TTextosDialogos& FTextos;
    TBotao* FBotao = nullptr;
    TMemorando* FDetalhe = nullptr;
};

/// Shows a message with the usual captions for ABotoes (OK when empty) and returns its modal result.
int ExecutarFormularioDetalhe(const TOryUtilsDialogsFormDetalhesIOP& AParametros, std::u16string_view ATitulo,
                              const TTextosDialogos& ATextos, std::shared_ptr<TFormulariosVivos> AVivos,
                              bool ADetalheAberto = false);

}  // namespace OryUtils
