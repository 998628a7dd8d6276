#pragma once

#include <string_view>

// The errors of date and time conversions. The text in question is quoted, its end cut off when it is very long.
namespace OryUtils::Interno {

/// Each raises EConvertError.
[[noreturn]] void DataInvalida(std::u16string_view ATexto);
[[noreturn]] void HoraInvalida(std::u16string_view ATexto);
[[noreturn]] void DataXmlInvalida(std::u16string_view ATexto);
[[noreturn]] void DataXmlForaDoIntervalo(std::u16string_view ATexto);
[[noreturn]] void DeslocamentoInvalido(std::u16string_view ATexto);
[[noreturn]] void ForaDoIntervalo();

}  // namespace OryUtils::Interno
