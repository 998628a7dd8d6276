#pragma once

#include <string>

namespace OryUtils::Interno {

/// Value of an environment variable in UTF-8; empty when it is not set. (Linux) Also empty in a program that runs with
/// more rights than its user.
std::string BuscarVariavelDeAmbiente(const char* ANome);

}  // namespace OryUtils::Interno
