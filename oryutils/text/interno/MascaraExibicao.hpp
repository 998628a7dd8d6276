#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// ANumero in a display mask: "#" takes the next character, "\" makes the next one a literal, others are literals; the
/// fields behind ";" play no part. A place without a digit shows a space, and digits without a place follow at the end.
std::u16string FormatarComMascara(std::u16string_view AMascara, std::u16string_view ANumero);

}  // namespace OryUtils::Interno
