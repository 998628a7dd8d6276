#pragma once

#include <string_view>

/// The edit masks of registry numbers, and the formats of numeric fields.
namespace OryUtils::MascarasDeCampos {

inline constexpr std::u16string_view CCnpj = u"99.999.999/9999-99;0; ";
/// The CNPJ of letters and digits: twelve of both, two check digits.
inline constexpr std::u16string_view CCnpjAlfanumerico = u">aa.aaa.aaa/aaaa-99;0; ";
inline constexpr std::u16string_view CCpf = u"999.999.999-99;0; ";
inline constexpr std::u16string_view CCei = u"99.999.99999/99;0; ";
inline constexpr std::u16string_view CCep = u"99999-999;0; ";
inline constexpr std::u16string_view CCompetencia = u"99/9999;0; ";
/// Digit, unit in two letters, six digits, letter of the kind, digit.
inline constexpr std::u16string_view CCrc = u"9>LL<999999>L<9;0; ";
/// The only one that stores its literals.
inline constexpr std::u16string_view CFone = u"!(999)99999-9999;1; ";
inline constexpr std::u16string_view CNcm = u"9999.999.99;0; ";

struct TFormatosDeNumero {
    std::u16string_view Exibicao, Edicao;
};
inline constexpr TFormatosDeNumero CValor{u",0.00", u"0.00"};
inline constexpr TFormatosDeNumero CPercentual{u",0.00 %", u"0.00"};
inline constexpr TFormatosDeNumero CInteiro{u"0", u"0"};

}  // namespace OryUtils::MascarasDeCampos
