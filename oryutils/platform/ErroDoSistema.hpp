#pragma once

#include "oryutils/OryExport.hpp"

#include <cstdint>
#include <string>

namespace OryUtils::Interno {

/// The system's own words for one of its error codes (GetLastError, WSAGetLastError; errno), without the final point
/// and line end. Never throws for an unknown code.
ORY_API std::u16string DescreverErroDoSistema(std::uint32_t ACodigo);

}  // namespace OryUtils::Interno
