#pragma once

#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"

/// The rules of CPF and CNPJ, over texts of bytes or of UTF-16.
namespace OryUtils::Interno {

inline constexpr TFormatoDocumento CFormatoCpf{
    11, {}, {{10, {10, 9, 8, 7, 6, 5, 4, 3, 2}}, {11, {11, 10, 9, 8, 7, 6, 5, 4, 3, 2}}}, "000.000.000-00"};
/// Twelve characters and two check digits.
inline constexpr TFormatoDocumento CFormatoCnpj{
    14,
    {},
    {{13, {5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}}, {14, {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2}}},
    "00.000.000/0000-00",
    12};

/// The digits of ATexto; everything else is dropped.
template <typename C>
constexpr TNumeroLido LerDigitos(std::basic_string_view<C> ATexto) noexcept {
    return LerNumero(ATexto, [](C c) { return ValorDe(c) > 9; });
}
/// mrNenhum, mrTamanho or mrDigito: of the digits of ATexto.
template <typename C>
constexpr TMotivoRecusa ConferirCpf(std::basic_string_view<C> ATexto) noexcept {
    return Conferir(CFormatoCpf, LerDigitos(ATexto));
}
/// The numeric CNPJ, likewise.
template <typename C>
constexpr TMotivoRecusa ConferirCnpj(std::basic_string_view<C> ATexto) noexcept {
    return Conferir(CFormatoCnpj, LerDigitos(ATexto));
}

/// ATexto without blanks and ". / -".
template <typename C>
constexpr TNumeroLido LerCnpjAlfanumerico(std::basic_string_view<C> ATexto) noexcept {
    return LerNumero(
        ATexto, [](C c) { return static_cast<std::make_unsigned_t<C>>(c) <= ' ' || c == '.' || c == '/' || c == '-'; });
}
/// A character that is not allowed goes before a wrong length.
template <typename C>
constexpr TMotivoRecusa ConferirCnpjAlfanumerico(std::basic_string_view<C> ATexto) noexcept {
    const TNumeroLido cnpj = LerCnpjAlfanumerico(ATexto);
    return TemSoCaracteresPermitidos(CFormatoCnpj, cnpj) ? Conferir(CFormatoCnpj, cnpj) : mrCaractere;
}
/// Whether ACnpj has the characters of a CNPJ; its check digits are not verified.
constexpr bool TemFormaDeCnpj(const TNumeroLido& ACnpj) noexcept {
    return ACnpj.Tamanho == CFormatoCnpj.Tamanho && TemSoCaracteresPermitidos(CFormatoCnpj, ACnpj);
}

}  // namespace OryUtils::Interno
