#pragma once

#include "Ambiente.hpp"

#include <span>
#include <string>

namespace Ory {

/// `ory --versao`.
void EscreverVersao(TSaida& ASaida);

/// Reads the command line with its options, sub-commands and help, and runs what it asks for.
int ExecutarLinhaDeComando(std::span<const std::string> AArgumentos, TAmbiente& AAmbiente);

}  // namespace Ory
