// What a screen reader calls the controls of a form, on every toolkit.
#pragma once

#include "oryutils/forms/Formulario.hpp"

namespace OryUtils {

/// Names of the label and the memo that show the message of a dialog.
inline constexpr std::u16string_view CNomeDaMensagem = u"Message", CNomeDaRolagem = u"MessageMemo";

/// What AControle is called: an icon by what it stands for ("Erro", "Pergunta", "Aviso", "Informação"), the memo of a
/// long message by the title, another box by the label right before it or else by its own name, a button, a check box
/// by its whole caption without "&". Empty for what the toolkit itself names.
ORY_API std::u16string BuscarNomeFalado(const TControleFormulario& AControle);

/// A form with the icon of a message is an alert.
ORY_API bool EhAlerta(const TFormulario& AFormulario);
/// The message of a dialog; empty for another form.
ORY_API std::u16string BuscarMensagemFalada(const TFormulario& AFormulario);

}  // namespace OryUtils
