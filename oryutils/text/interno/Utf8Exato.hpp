#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// UTF-16 to UTF-8, with each lone surrogate in the three bytes of its code instead of U+FFFD. What other programs read
/// as UTF-8 is UTF-8 whenever the text is well formed.
std::string ParaUtf8Exato(std::u16string_view ATexto);

/// The way back; other malformed bytes become U+FFFD.
std::u16string DeUtf8Exato(std::string_view ABytes);

}  // namespace OryUtils::Interno
