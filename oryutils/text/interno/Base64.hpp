#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Bytes in Base64 (RFC 4648 alphabet, "=" padding), on one line.
std::u16string CodificarBase64(std::string_view ABytes);

/// The bytes that ATexto stands for. CR and LF are skipped. Raises EConvertError for anything else that is not Base64.
std::string DecodificarBase64(std::u16string_view ATexto);

}  // namespace OryUtils::Interno
