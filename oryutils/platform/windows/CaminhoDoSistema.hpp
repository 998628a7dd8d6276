#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The path of a file or a folder for a call of the system. One of 248 characters or more, which calls would refuse,
/// becomes a full one behind the mark that lifts the limit: "\\?\C:\pasta" or "\\?\UNC\servidor\pasta".
/// ANome  without characters of code 0
std::wstring CaminhoDoSistema(std::u16string_view ANome);

}  // namespace OryUtils::Interno
