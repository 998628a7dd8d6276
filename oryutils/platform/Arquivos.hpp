#pragma once

#include "oryutils/platform/ErroDoSistema.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The bytes of a file of the disk; none when it is not there, is no such file or cannot be read.
std::optional<std::string> LerArquivo(std::u16string_view AArquivo);
/// Gives the file ADe the name APara of the same folder in one step; a file of that name is replaced. Other programs
/// see the old file or the new one, never a part. Close ADe first.
TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara);
/// Deletes the file; one that is not there is no error.
TErroFluxo ExcluirArquivo(const std::string& ANome);

}  // namespace OryUtils::Interno
