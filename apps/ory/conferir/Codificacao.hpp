#pragma once

#include <string>
#include <string_view>

namespace Ory {

enum TCodificacao : int { coDetectar, coUtf8, coWindows1252 };

/// UTF-8 when the bytes are well-formed UTF-8, else Windows-1252: text of that code page with an accent in it is
/// hardly ever UTF-8 by chance.
std::u16string Decodificar(std::string_view ABytes);
/// The same with the encoding told; to UTF-8.
std::string DecodificarParaUtf8(std::string_view ABytes, TCodificacao ACodificacao);

}  // namespace Ory
