#pragma once

#include "oryutils/forms/Formulario.hpp"

#include <string>

namespace OryUtils {

/// Ctrl and C, no other modifier.
bool EhCtrlC(const TTecla& ATecla) noexcept;

/// A message form as text, as the message boxes of Windows copy themselves: title, message and buttons between lines of
/// dashes. Options and check boxes follow the message, "(x) A4" for a chosen one.
std::u16string MontarTextoCopiado(const TFormulario& AFormulario);

}  // namespace OryUtils
