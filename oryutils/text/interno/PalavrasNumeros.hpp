#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace OryUtils::Interno {

// The words of the numbers as printed since the first version: TRES has no accent and 14 is CATORZE.
// clang-format off
inline constexpr std::array<std::u16string_view, 19> CPalavrasUnidades{
    u"UM", u"DOIS", u"TRES", u"QUATRO", u"CINCO", u"SEIS", u"SETE", u"OITO", u"NOVE", u"DEZ",
    u"ONZE", u"DOZE", u"TREZE", u"CATORZE", u"QUINZE", u"DEZESSEIS", u"DEZESSETE", u"DEZOITO", u"DEZENOVE"};
inline constexpr std::array<std::u16string_view, 9> CPalavrasDezenas{
    u"DEZ", u"VINTE", u"TRINTA", u"QUARENTA", u"CINQUENTA", u"SESSENTA", u"SETENTA", u"OITENTA", u"NOVENTA"};
inline constexpr std::array<std::u16string_view, 9> CPalavrasCentenas{
    u"CENTO", u"DUZENTOS", u"TREZENTOS", u"QUATROCENTOS", u"QUINHENTOS", u"SEISCENTOS", u"SETECENTOS", u"OITOCENTOS",
    u"NOVECENTOS"};
// clang-format on
inline constexpr std::u16string_view CPalavraCem = u"CEM";

/// A few words in a field of fixed width, which copies in a handful of moves.
struct TPalavras {
    static constexpr std::size_t CLargura = 24;
    std::array<char16_t, CLargura> Texto{};
    std::size_t Tamanho = 0;

    constexpr TPalavras& operator+=(std::u16string_view AParte) {
        for (const char16_t c : AParte) Texto[Tamanho++] = c;
        return *this;
    }
};

/// The words of 0 (none) to 99.
inline constexpr auto CPalavrasAte99 = [] {
    std::array<TPalavras, 100> palavras{};
    for (std::size_t v = 1; v < palavras.size(); ++v) {
        if (v < 20) {
            palavras[v] += CPalavrasUnidades[v - 1];
            continue;
        }
        palavras[v] += CPalavrasDezenas[v / 10 - 1];
        if (v % 10 > 0) (palavras[v] += u" E ") += CPalavrasUnidades[v % 10 - 1];
    }
    return palavras;
}();

/// The hundreds with the " E " that joins what follows them.
inline constexpr auto CPalavrasCentenasE = [] {
    std::array<TPalavras, 10> palavras{};
    for (std::size_t c = 1; c < palavras.size(); ++c) (palavras[c] += CPalavrasCentenas[c - 1]) += u" E ";
    return palavras;
}();

}  // namespace OryUtils::Interno
