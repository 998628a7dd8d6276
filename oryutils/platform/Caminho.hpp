#pragma once

#include <string_view>

namespace OryUtils::Interno {

/// True when a command line that begins with AComando, a name without a folder, would find a program: on the PATH (and,
/// on Windows, in the folders that are always searched).
bool ExisteComando(std::u16string_view AComando);

}  // namespace OryUtils::Interno
