#pragma once

#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// A small form that asks for one line of text: prompt (label "Message"), edit box, OK and cancel buttons. True
/// when OK was chosen: AValor is then what was typed, else what it was. Raises what ExigirToolkit raises.
bool ExecutarFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta, std::u16string& AValor,
                               const TTextosDialogos& ATextos);

}  // namespace OryUtils
