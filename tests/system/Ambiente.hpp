#pragma once

#include <string>

namespace Testes {

/// Environment variables of this process, for it and for the programs that it starts. Empty is not set.
std::string BuscarVariavel(const std::string& ANome);
void DefinirVariavel(const std::string& ANome, const std::string& AValor);

}  // namespace Testes
