#pragma once

#include <cstddef>
#include <span>

namespace OryUtils::Interno {

/// Fills ABytes from the system's random generator. Throws std::runtime_error when the system has none to give.
void PreencherAleatorio(std::span<std::byte> ABytes);

}  // namespace OryUtils::Interno
