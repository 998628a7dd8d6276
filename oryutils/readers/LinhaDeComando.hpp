#pragma once

#include "oryutils/OryExport.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// Splits a command line into program and arguments as CommandLineToArgvW of Windows does. A blank is a space or a tab.
///   - A program that begins with a quote ends at the next quote. Another program ends at the next blank.
///   - Blanks outside quotes separate the arguments. A quoted part may begin anywhere in an argument.
///   - 2n backslashes before a quote give n backslashes, and the quote begins or ends a quoted part.
///   - 2n + 1 backslashes before a quote give n backslashes and a quote of the text.
///   - Other backslashes stand for themselves.
///   - Three quotes in a row, the opening one included, give one quote of the text.
/// A line that begins with a blank has an empty program. An empty line gives an empty list.
/// Example:  u"\"C:\\a b\\x.exe\" /c \"d e\""  ->  C:\a b\x.exe, /c, d e
ORY_API std::vector<std::u16string> SepararLinhaDeComando(std::u16string_view ALinha);
/// Splits a text that holds arguments alone, without a program in front.
ORY_API std::vector<std::u16string> SepararArgumentos(std::u16string_view AArgumentos);

}  // namespace OryUtils::Interno
