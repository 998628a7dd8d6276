#pragma once

#include <span>
#include <string>
#include <string_view>

namespace Ory {

/// "; você quis dizer conferir?" for the name of ANomes that AEscrito is a slip of: one letter more, less, other or
/// exchanged with its neighbour, two in long names; the letter case plays no part. Empty when there is none.
std::string Sugerir(std::string_view AEscrito, std::span<const std::string> ANomes);

}  // namespace Ory
