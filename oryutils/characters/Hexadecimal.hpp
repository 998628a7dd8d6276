#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace OryUtils::Interno {

/// 0 to 15 for a hexadecimal digit of either case; -1 for any other character.
constexpr int ValorHexadecimal(char16_t ADigito) noexcept {
    if (ADigito >= u'0' && ADigito <= u'9') return ADigito - u'0';
    if (ADigito >= u'a' && ADigito <= u'f') return ADigito - u'a' + 10;
    if (ADigito >= u'A' && ADigito <= u'F') return ADigito - u'A' + 10;
    return -1;
}

/// AValor in lower-case hexadecimal digits, with zeros in front where it has less than AMinimo of them.
/// Example: TextoHexadecimal(10, 2) is "0a".
inline std::u16string TextoHexadecimal(std::uint32_t AValor, std::size_t AMinimo = 1) {
    std::size_t digitos = 1;
    for (std::uint32_t resto = AValor >> 4; resto > 0; resto >>= 4) ++digitos;
    std::u16string texto(digitos < AMinimo ? AMinimo : digitos, u'0');
    for (auto posicao = texto.rbegin(); AValor > 0; ++posicao, AValor >>= 4)
        *posicao = u"0123456789abcdef"[AValor & 0xF];
    return texto;
}

}  // namespace OryUtils::Interno
