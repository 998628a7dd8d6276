#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Controle.hpp"

#include <memory>
#include <string_view>

namespace OryUtils {

/// What lower rooms need from the user interface above them. The message dialogs fill it at start; before that a
/// warning or an error goes to stderr, the pump does nothing and the focus is given directly.
struct TCosturaInterface {
    void (*Alerta)(std::u16string_view AMensagem);
    void (*Erro)(std::u16string_view AMensagem);
    /// Lets the host's message loop run once.
    void (*ProcessarMensagens)();
    /// Gives AControle the focus when it can take it.
    void (*AtribuirFoco)(TWinControl* AControle);
    /// Of the screen; 96 before the user interface starts.
    int (*BuscarPixelsPorPolegada)();
    /// The busy cursor, or the ordinary one again.
    void (*MostrarCursorOcupado)(bool AOcupado);
    /// The application's windows take no input as long as the result lives; those that took it before do so again
    /// afterwards. Null when there are none.
    std::shared_ptr<void> (*DesabilitarJanelas)();
};

/// The seam in use. Change it only while no other thread calls the library.
ORY_API TCosturaInterface& CosturaInterface() noexcept;
/// The seam as it is before the user interface starts.
ORY_API TCosturaInterface BuscarCosturaPadrao() noexcept;

}  // namespace OryUtils
