#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils {

/// The extended float: 80 bits on both platforms. The operations of the library compute with all of them whatever the
/// thread has been set to; a program's own sums have 53 bits of precision on a thread that CreateThread started, and in
/// a program of another compiler.
using Extended = long double;

/// The readers neither allocate nor depend on the locale of the process. Nor do the writers depend on it.

/// A decimal 64-bit integer: blanks before it, an optional sign, digits; nothing after. None otherwise, also when it
/// does not fit.
ORY_API std::optional<std::int64_t> TentarTextoParaInt64(std::u16string_view ATexto) noexcept;
ORY_API std::int64_t TextoParaInt64Padrao(std::u16string_view ATexto, std::int64_t APadrao) noexcept;
ORY_API int TextoParaIntPadrao(std::u16string_view ATexto, int APadrao) noexcept;
/// Raise EConvertError ("'12a' não é um valor inteiro válido").
ORY_API std::int64_t TextoParaInt64(std::u16string_view ATexto);
ORY_API int TextoParaInt(std::u16string_view ATexto);

/// A floating-point number with the decimal separator of the formats, optional sign and exponent, blanks at both ends
/// allowed; no thousands separators. Digits may be missing on one side of the separator. The nearest number, halves to
/// even; 0 when too small. None otherwise, also when it is too large.
ORY_API std::optional<Extended> TentarTextoParaExtended(std::u16string_view ATexto,
                                                        const TFormatSettings& AFormatos = FormatSettings()) noexcept;
ORY_API Extended TextoParaExtendedPadrao(std::u16string_view ATexto, Extended APadrao,
                                         const TFormatSettings& AFormatos = FormatSettings()) noexcept;
/// Raises EConvertError ("'1,2,3' não é um valor de ponto flutuante válido").
ORY_API Extended TextoParaExtended(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings());

/// The shortest general text with at most 15 significant digits: "0,1", "1234,5", "1E15", "1E-5". From 10^15 up and
/// below 10^-4 in magnitude the scientific form is used. The exact value is rounded, halves away from zero.
/// "INF", "-INF" and "NAN" for what is not a number.
ORY_API std::u16string ExtendedParaTexto(Extended AValor, const TFormatSettings& AFormatos = FormatSettings());
ORY_API std::u16string InteiroParaTexto(std::int64_t AValor);

/// Room for the text of a 64-bit integer, with its sign.
inline constexpr std::size_t CTamanhoMaximoInt64 = 20;
/// As InteiroParaTexto, into the end of ADestino without allocating; the result is the written text.
ORY_API std::u16string_view EscreverInt64(std::int64_t AValor,
                                          std::span<char16_t, CTamanhoMaximoInt64> ADestino) noexcept;

/// Room for the text of an Extended: sign, 15 digits, zeros behind the separator, exponent.
inline constexpr std::size_t CTamanhoMaximoExtended = 32;
/// As ExtendedParaTexto, into ADestino without allocating; the result is the written text.
ORY_API std::u16string_view EscreverExtended(Extended AValor, std::span<char16_t, CTamanhoMaximoExtended> ADestino,
                                             char16_t ASeparadorDecimal) noexcept;
/// The number that the text of AValor reads back as, without going through the text. Infinity where the text would be
/// too large to read.
ORY_API Extended ArredondarPara15Digitos(Extended AValor) noexcept;

/// AValor rounded to an integer (halves away from zero) and written with at least ADigitos digits, zero-filled on the
/// left; a minus sign comes before the zeros, and not before zeros alone. All digits of a large number are exact; what
/// is not finite counts 0.
ORY_API std::u16string FormatarZeros(Extended AValor, int ADigitos);

/// Room for the longest integer of an Extended, with its sign.
inline constexpr std::size_t CTamanhoMaximoInteiro = 4936;
/// As FormatarZeros, into the end of ADestino without allocating; the result is the written part. Digits that do not
/// fit ADestino are lost on the left.
ORY_API std::u16string_view EscreverZeros(Extended AValor, int ADigitos, std::span<char16_t> ADestino) noexcept;

}  // namespace OryUtils
