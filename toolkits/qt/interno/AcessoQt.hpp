#pragma once

#include "oryutils/forms/Formulario.hpp"

#include <QString>

namespace OryUtils {

/// What a screen reader says of a control that shows no caption: of an icon its kind of message; of a box or a memo the
/// label right before it, of the memo that stands in for a long message the title, else the control's own name. Empty
/// for any other control.
QString BuscarNomeFalado(const TControleFormulario& AControle);

/// From now on forms with an icon of a message are alerts for screen readers, with the message as their description.
void DeclararAlertas();

}  // namespace OryUtils
