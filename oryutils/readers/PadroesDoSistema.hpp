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

/// AMarca is what stands for the separator in the format language: '/' in a date, ':' in a time, 0 when the separator
/// shall stay a literal. Names of zones and eras have no equivalent and are dropped.

/// A pattern of strftime.
/// Example:  ("%d-%m-%Y", '/')  ->  "dd/mm/yyyy", separator "-"
TPadraoLido DePadraoStrftime(std::u16string_view APadrao, char16_t AMarca);
/// A pattern of Windows ("d 'de' MMMM", "h:mm tt").
TPadraoLido DePadraoWindows(std::u16string_view APadrao, char16_t AMarca);

/// A time pattern without its seconds.
std::u16string RetirarSegundos(std::u16string APadrao);

}  // namespace OryUtils::Interno
