#pragma once

#include "oryutils/readers/DadoRegistro.hpp"

#include <cstddef>
#include <string>
#include <string_view>

// The data of a value as an exported registry file shows it:
//   "text"             REG_SZ; \\ and \" are its only escapes
//   dword:0001e240     REG_DWORD
//   hex:01,02,\        REG_BINARY; a backslash goes on in the next line
//   hex(7):61,00,...   any kind, by its number in hexadecimal
namespace OryUtils::Interno {

/// Where the quoted text that starts at AInicio has ended, on the same line; npos when it has not, or has an escape
/// that there is not.
std::size_t BuscarFimDoTextoReg(std::u16string_view ATexto, std::size_t AInicio) noexcept;
/// Where the data that starts at AInicio has ended; npos when it is none.
std::size_t BuscarFimDoDadoReg(std::u16string_view ATexto, std::size_t AInicio) noexcept;

/// The value of a text for which BuscarFimDoDadoReg is its end.
TDadoRegistro LerDadoReg(std::u16string_view ATexto);

/// Appends ADado to ATexto. Lines of hexadecimal are broken before column 80; AColuna is the one already reached.
void AnexarDadoReg(std::u16string& ATexto, const TDadoRegistro& ADado, std::size_t AColuna);
/// Appends ANome between quotes, escaped.
void AnexarTextoReg(std::u16string& ATexto, std::u16string_view ANome);

}  // namespace OryUtils::Interno
