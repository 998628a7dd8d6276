#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Instancia.hpp"

#include <string_view>

namespace OryUtils {

/// The one way the library speaks to the user. Belongs to the thread of the user interface.
class ORY_API TOryUtilsDialogs {
public:
    /// Shows a message titled "Informação", "Aviso" or "Erro" and waits until it is closed.
    void Informacao(std::u16string_view AMensagem);
    void Alerta(std::u16string_view AMensagem);
    void Erro(std::u16string_view AMensagem);
};

extern ORY_API TInstanciaGlobal<TOryUtilsDialogs> GOryUtilsDialogs;

/// Puts the dialogs behind the seam of the lower rooms, and takes them away.
void IniciarInterface();
void FinalizarInterface();

}  // namespace OryUtils
