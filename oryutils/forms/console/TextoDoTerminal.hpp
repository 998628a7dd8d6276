#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// ATexto as a terminal may show it: line breaks are "\n", a tab is a blank, and any other control, escape sequences
/// among them, and the marks that turn the direction of writing show as "?": a text never commands the terminal. Lines
/// longer than AColunas (0: never) break between words; only a word longer than a line is cut by the terminal.
std::u16string ParaTerminal(std::u16string_view ATexto, int AColunas);

}  // namespace OryUtils::Interno
