#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Ory {

// Texts of a terminal, in UTF-8. One character takes one column.

inline constexpr std::string_view CVerde = "\x1b[32m";
inline constexpr std::string_view CVermelho = "\x1b[31m";
inline constexpr std::string_view CNegrito = "\x1b[1m";
inline constexpr std::string_view CNormal = "\x1b[0m";

std::size_t ContarCaracteres(std::string_view ATexto);
/// A text from outside as it may be shown: no controls (they could drive the terminal), no more than AMaior characters.
std::string ParaATela(std::u16string_view ATexto, std::size_t AMaior);
/// ATexto filled with blanks, on the left or on the right, to ALargura characters.
std::string ADireita(std::string_view ATexto, std::size_t ALargura);
std::string AEsquerda(std::string_view ATexto, std::size_t ALargura);

}  // namespace Ory
