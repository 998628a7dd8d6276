#pragma once

#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

/// A small form that asks for one line of text: prompt (label "Message"), edit box, OK and cancel buttons. Returns the
/// text when OK was chosen. Raises what ExigirToolkit raises.
std::optional<std::u16string> ExecutarFormularioEntrada(std::u16string_view ATitulo, std::u16string_view APergunta,
                                                        std::u16string_view AValor, const TTextosDialogos& ATextos);

}  // namespace OryUtils
