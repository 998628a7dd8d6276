#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// Writes AValor by a pattern of the number format language:
///   0            a digit, also where the number has none: shows at least so many places
///   #            a digit where the number has one
///   .            where the decimal separator goes (the first one; a second one is nothing). The separator itself is
///                written with the first decimal, so not at all without decimals
///   ,            anywhere: thousands separators in the whole part
///   E+ E- e+ e-  scientific notation; the zeros behind (four count) are the least digits of the exponent. With "+"
///                its sign is always written, with "-" only when negative. The places are significant digits
///   'x' "x"      literal, up to the end when it is not closed
///   ;            parts sections: positive numbers; negative ones; zero
///   others, "%" among them, stand for themselves
/// The number is rounded, halves away from zero, to as many decimals as there are places behind the point, of at most
/// 18 significant digits; whole digits without a place go before the first one. A section that is missing or empty
/// stands for the first one, which puts a "-" before a negative number. What rounds to zero is written by the section
/// of zero, without a sign. With an empty first section, with more than 18 whole digits outside scientific notation,
/// and for what is not a number, the text is that of ExtendedParaTexto. Never throws.
/// Example:  FormatarNumero(u",0.00 %", 1234.5)  ->  "1.234,50 %" under the Brazilian formats
ORY_API std::u16string FormatarNumero(std::u16string_view AFormato, Extended AValor,
                                      const TFormatSettings& AFormatos = FormatSettings());

}  // namespace OryUtils
