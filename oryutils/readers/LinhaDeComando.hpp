#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// Splits a command line into program and arguments as CommandLineToArgvW of Windows does:
///   - the program goes up to the next quote when it begins with one, else up to the next blank (space or tab);
///   - arguments are separated by blanks outside quotes; a quoted part may begin anywhere in one;
///   - 2n backslashes before a quote are n backslashes, and the quote begins or ends a quoted part;
///   - 2n + 1 backslashes before a quote are n backslashes and a quote of the text;
///   - all other backslashes stand for themselves;
///   - of three quotes in a row inside a quoted part, the second and the third make one quote of the text.
/// A line that begins with a blank has an empty program. An empty line has no parts.
/// Example:  u"\"C:\\a b\\x.exe\" /c \"d e\""  ->  C:\a b\x.exe, /c, d e
std::vector<std::u16string> SepararLinhaDeComando(std::u16string_view ALinha);
/// The part behind the program by itself.
std::vector<std::u16string> SepararArgumentos(std::u16string_view AArgumentos);

}  // namespace OryUtils::Interno
