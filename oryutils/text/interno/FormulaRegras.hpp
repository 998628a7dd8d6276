#pragma once

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"

namespace OryUtils::Interno {

/// What the value of a formula depends on besides its text and its variables.
struct TRegrasFormula {
    char16_t SeparadorDecimal = u',';
    char16_t SeparadorMilhar = u'.';
    TMetodoArredondamento Ajuste = maNenhum;
    std::uint8_t Casas = 2;

    bool operator==(const TRegrasFormula&) const = default;

    Extended Ajustar(Extended AValor) const {
        switch (Ajuste) {
            case maMatematico:
                return TOryUtilsMatematica::Arredondar(AValor, maMatematico, Casas,
                                                       static_cast<std::uint8_t>(Casas + 1));
            case maTruncamento:
                return TOryUtilsMatematica::Arredondar(AValor, maTruncamento, Casas, 10);
            default:
                return AValor;
        }
    }

    constexpr bool EhVariavel(char16_t c) const noexcept;
};

constexpr bool EhOperadorExcetoSubtracao(char16_t c) noexcept { return c == u'*' || c == u'/' || c == u'+'; }
constexpr bool EhSinalDeOperacao(char16_t c) noexcept { return EhOperadorExcetoSubtracao(c) || c == u'-'; }

constexpr bool TRegrasFormula::EhVariavel(char16_t c) const noexcept {
    return !EhSinalDeOperacao(c) && !EhDigito(c) && c != u'(' && c != u')' && c != SeparadorDecimal &&
           c != SeparadorMilhar;
}

}  // namespace OryUtils::Interno
