#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The work of TOryUtilsStrings::SubstituirCaracteres.
std::u16string SubstituirPorPassos(std::u16string_view ATexto, std::u16string_view AAntigo, std::u16string_view ANovo);

}  // namespace OryUtils::Interno
