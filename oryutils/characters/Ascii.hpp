#pragma once

// The case of ASCII letters, for text that a standard keeps in ASCII: commands, keys and names of formats. MinusculaDe
// and MaiusculaDe (Caixa.hpp) also know the accented letters.
namespace OryUtils::Interno {

/// The lower-case letter of an ASCII letter, and any other character as it is.
template <typename TLetra>
constexpr TLetra MinusculaAscii(TLetra ALetra) noexcept {
    return ALetra >= 'A' && ALetra <= 'Z' ? static_cast<TLetra>(ALetra - 'A' + 'a') : ALetra;
}

/// The upper-case letter of an ASCII letter, and any other character as it is.
template <typename TLetra>
constexpr TLetra MaiusculaAscii(TLetra ALetra) noexcept {
    return ALetra >= 'a' && ALetra <= 'z' ? static_cast<TLetra>(ALetra - 'a' + 'A') : ALetra;
}

}  // namespace OryUtils::Interno
