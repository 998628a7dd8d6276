#pragma once

#include "oryutils/runtime/NumeroTexto.hpp"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace Ory {

/// JSON as it is read: decimal numbers keep the precision of the library's Extended.
using TJson =
    nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, OryUtils::Extended>;

/// Appends ATexto (UTF-8) as a JSON string. Malformed UTF-8 becomes U+FFFD.
void EscreverTextoJson(std::string& ASaida, std::string_view ATexto);
/// Appends ATexto as a JSON string. A lone surrogate becomes U+FFFD.
void EscreverTextoJson(std::string& ASaida, std::u16string_view ATexto);

}  // namespace Ory
