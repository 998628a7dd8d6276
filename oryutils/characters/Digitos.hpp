#pragma once

#include <array>

// Digits of dates, straight into a buffer.
namespace OryUtils::Interno {

inline constexpr auto CPares = [] {
    std::array<std::array<char16_t, 2>, 100> pares{};
    for (int i = 0; i < 100; ++i)
        pares[static_cast<std::size_t>(i)] = {static_cast<char16_t>(u'0' + i / 10),
                                              static_cast<char16_t>(u'0' + i % 10)};
    return pares;
}();

/// Writes two digits (AValor 0 to 99) or four (0 to 9999); gives the position after them.
inline char16_t* EscreverDois(char16_t* ADestino, int AValor) {
    const auto& par = CPares[static_cast<std::size_t>(AValor)];
    ADestino[0] = par[0];
    ADestino[1] = par[1];
    return ADestino + 2;
}
inline char16_t* EscreverQuatro(char16_t* ADestino, int AValor) {
    return EscreverDois(EscreverDois(ADestino, AValor / 100), AValor % 100);
}

}  // namespace OryUtils::Interno
