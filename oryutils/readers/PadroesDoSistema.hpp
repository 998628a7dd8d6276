#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// A date or time pattern of the system told in the date-time format language.
struct TPadraoLido {
    std::u16string Padrao{};
    char16_t Separador = 0;  // 0 when the parts are not separated by a punctuation mark
    bool operator==(const TPadraoLido&) const = default;
};

/// Translates a pattern of strftime. Names of zones and of eras have no equivalent and are dropped.
/// AMarca  the character that stands for the separator in the format language: '/' in a date, ':' in a time, 0 to keep
///         the separator as a literal
/// Example:  ("%d-%m-%Y", '/')  ->  "dd/mm/yyyy", separator "-"
TPadraoLido DePadraoStrftime(std::u16string_view APadrao, char16_t AMarca);
/// Translates a pattern of Windows, such as "d 'de' MMMM" and "h:mm tt". AMarca is as above.
TPadraoLido DePadraoWindows(std::u16string_view APadrao, char16_t AMarca);

/// A time pattern without its seconds.
std::u16string RetirarSegundos(std::u16string APadrao);

}  // namespace OryUtils::Interno
