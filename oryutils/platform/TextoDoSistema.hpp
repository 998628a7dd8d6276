#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Text in the encoding that the system takes for a plain text file: the default ANSI code page on Windows, UTF-8 on
/// Linux. A character that a code page lacks becomes "?"; in UTF-8 a lone surrogate becomes U+FFFD. Never throws.
std::string ParaTextoDoSistema(std::u16string_view ATexto);
/// The reverse. What is malformed becomes the system's mark for it; never throws.
/// APagina  (Windows) the code page instead of the default one; one that the system has
std::u16string DeTextoDoSistema(std::string_view ATexto, std::uint32_t APagina = 0);

/// What ends a line of a text file: CR LF on Windows, LF on Linux.
std::u16string_view BuscarQuebraDeLinha() noexcept;

}  // namespace OryUtils::Interno
