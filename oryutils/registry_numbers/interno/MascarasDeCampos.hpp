#pragma once

#include <string_view>

/// The edit masks of registry numbers.
namespace OryUtils::Interno {

inline constexpr std::u16string_view CMascaraCnpj = u"99.999.999/9999-99;0; ";
/// The CNPJ of letters and digits: twelve of both, two check digits.
inline constexpr std::u16string_view CMascaraCnpjAlfanumerico = u">aa.aaa.aaa/aaaa-99;0; ";
inline constexpr std::u16string_view CMascaraCpf = u"999.999.999-99;0; ";
inline constexpr std::u16string_view CMascaraCei = u"99.999.99999/99;0; ";
inline constexpr std::u16string_view CMascaraCep = u"99999-999;0; ";
inline constexpr std::u16string_view CMascaraCompetencia = u"99/9999;0; ";
/// Digit, unit in two letters, six digits, letter of the kind, digit.
inline constexpr std::u16string_view CMascaraCrc = u"9>LL<999999>L<9;0; ";
/// The value is stored with the parentheses and the hyphen, unlike those of the other masks.
inline constexpr std::u16string_view CMascaraFone = u"!(999)99999-9999;1; ";
/// Phones with an area code of two digits: eight digits, nine, and the free or shared numbers that have no area code.
inline constexpr std::u16string_view CMascaraFoneFixo = u"(00)0000-0000;0; ";
inline constexpr std::u16string_view CMascaraFoneMovel = u"(00)00000-0000;0; ";
inline constexpr std::u16string_view CMascaraFoneSemDDD = u"0000 000 0000;0; ";
/// All places of these are required.
inline constexpr std::u16string_view CMascaraCpfInteiro = u"000.000.000-00;0; ";
inline constexpr std::u16string_view CMascaraCnpjInteiro = u">AA.AAA.AAA/AAAA-00;0; ";
inline constexpr std::u16string_view CMascaraNcm = u"9999.999.99;0; ";

}  // namespace OryUtils::Interno
