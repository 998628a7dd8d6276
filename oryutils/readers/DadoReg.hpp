#pragma once

#include "oryutils/readers/CursorReg.hpp"
#include "oryutils/readers/DadoRegistro.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// The data of a value as an exported registry file shows it:
//   "text"             REG_SZ; \\ and \" are its only escapes
//   dword:0001e240     REG_DWORD
//   hex:01,02,\        REG_BINARY; a backslash at the end of a line goes on in the next one
//   hex(7):61,00,...   any kind, by its number in hexadecimal
namespace OryUtils::Interno {

/// Reads a text between quotes, without its escapes. None, with the cursor anywhere, when there is no such text: it
/// must close on its line.
std::optional<std::u16string> LerTextoReg(TCursorReg& ACursor);
/// Reads the data of a value. None, with the cursor anywhere, when what stands there is no data.
std::optional<TDadoRegistro> LerDadoReg(TCursorReg& ACursor);

/// Appends ANome between quotes, escaped.
void AnexarTextoReg(std::u16string& ATexto, std::u16string_view ANome);
/// Appends ADado. Lines of hexadecimal are broken before column 80; AInicioDaLinha is where the last line of ATexto
/// starts.
void AnexarDadoReg(std::u16string& ATexto, const TDadoRegistro& ADado, std::size_t AInicioDaLinha);

}  // namespace OryUtils::Interno
