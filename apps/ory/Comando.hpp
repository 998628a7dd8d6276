#pragma once

#include "Ambiente.hpp"

#include <span>
#include <string>

namespace Ory {

/// The whole command: reads the arguments (without the program's name), runs what they ask for and gives the exit
/// status. Failures become one sentence on AAmbiente.Erro.
int Executar(std::span<const std::string> AArgumentos, TAmbiente& AAmbiente);

}  // namespace Ory
