#pragma once

#include <string_view>

namespace OryUtils::Interno {

/// Hands AArquivo to the program that the system keeps for its kind, with AParametros where it is a program itself.
/// True when the system took the order; it does not wait for the program. Nothing throws, short of memory.
bool AbrirComProgramaPadrao(std::u16string_view AArquivo, std::u16string_view AParametros);

}  // namespace OryUtils::Interno
