#pragma once

#include "oryutils/types/OryTypesFormatos.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// A number as people write it, or copy it from a page, a spreadsheet or a bank's file, as plain text: digits, the
/// decimal separator of the formats, "-" in front. Blanks around it, "R$" before it and, where APercentual, "%" behind
/// it count nothing. None when it is no number or could be read in two ways:
///   - with both "." and "," the last one is the decimal mark, the others part thousands;
///   - a mark that comes more than once parts thousands;
///   - a mark that comes once is the decimal mark when it is that of the formats, or when it cannot part thousands:
///     "1234.56" and "0.125" are read so where the comma is the decimal mark, and "1.234" is a thousand.
/// Thousands are parted in groups of three, all of them by the same mark: "." "," a blank, "'" or that of the formats.
/// A tab or a line break parts two numbers.
std::optional<std::u16string> LerNumeroDigitado(std::u16string_view ATexto, const OryTypes::TFormatSettings& AFormatos,
                                                bool APercentual);

}  // namespace OryUtils::Interno
