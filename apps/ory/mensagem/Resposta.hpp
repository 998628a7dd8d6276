#pragma once

#include "Ambiente.hpp"

#include <string_view>

namespace Ory {

/// Exit statuses of `ory mensagem` beside stFalha, by what the user answered.
enum TStatusMensagem : int {
    smSim = 0,
    smNao = 1,
    smCancelada = 3,        // cancel button, Esc or window closed
    smTempoEsgotado = 4,    // --fechar-em
    smSemQuemResponda = 5,  // neither a screen nor a terminal
};

/// Writes ATexto as one line: a line break inside of it becomes a blank.
void EscreverLinha(TAmbiente& AAmbiente, std::u16string_view ATexto);

/// Tells that there is nobody to be asked, and gives the status of that.
int RecusarSemQuemResponda(TAmbiente& AAmbiente);

}  // namespace Ory
