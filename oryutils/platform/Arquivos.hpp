#pragma once

#include "oryutils/platform/Fluxo.hpp"

#include <string>

namespace OryUtils::Interno {

/// Gives the file ADe the name APara of the same folder in one step; a file of that name is replaced. Other programs
/// see the old file or the new one, never a part. Close ADe first.
TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara);
/// Deletes the file; one that is not there is no error.
TErroFluxo ExcluirArquivo(const std::string& ANome);

}  // namespace OryUtils::Interno
