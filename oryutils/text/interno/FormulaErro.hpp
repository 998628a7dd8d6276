#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

enum TMotivoErroFormula : std::uint8_t { meNenhum, meDoisArgumentos, meVariavel, meSemFim, meNumero };

/// Why a formula has no value. The steps hand it on as a value: a broken formula may hold an error in each of its
/// calls, and only one of them is raised in the end.
struct TErroFormula {
    TMotivoErroFormula Motivo = meNenhum;
    std::u16string Texto{};  // the name of the variable; what is no number

    [[noreturn]] void Lancar() const;
};

}  // namespace OryUtils::Interno
