#pragma once

#include <algorithm>
#include <bitset>
#include <concepts>
#include <initializer_list>
#include <string_view>

namespace OryUtils {

/// Characters given as an argument: a list in braces, or a text of any kind (u".-", a std::u16string, a view). Borrows
/// them; never keep one.
class TCaracteres {
public:
    constexpr TCaracteres(std::initializer_list<char16_t> ALista) : FTexto(ALista.begin(), ALista.size()) {}
    template <typename TTexto>
    requires std::convertible_to<const TTexto&, std::u16string_view>
    constexpr TCaracteres(const TTexto& ATexto) : FTexto(ATexto) {}

    constexpr auto begin() const { return FTexto.begin(); }
    constexpr auto end() const { return FTexto.end(); }
    constexpr std::u16string_view GetTexto() const { return FTexto; }

private:
    std::u16string_view FTexto;
};

/// Set of 8-bit characters: a character above code 255 is never a member.
class TConjuntoCaracteres {
public:
    constexpr TConjuntoCaracteres() = default;
    TConjuntoCaracteres(std::initializer_list<char16_t> ALista) : TConjuntoCaracteres(TCaracteres(ALista)) {}
    template <typename TTexto>
    requires std::convertible_to<const TTexto&, std::u16string_view> TConjuntoCaracteres(const TTexto& ATexto)
        : TConjuntoCaracteres(TCaracteres(ATexto)) {}
    TConjuntoCaracteres(TCaracteres ACaracteres) {
        for (const char16_t c : ACaracteres)
            if (c < 256) FMembros.set(c);
    }
    bool Contem(char16_t ACaractere) const { return ACaractere < 256 && FMembros.test(ACaractere); }

private:
    std::bitset<256> FMembros;
};

/// ASCII digit, whatever the locale.
constexpr bool EhDigito(char16_t ACaractere) noexcept { return ACaractere >= u'0' && ACaractere <= u'9'; }
/// ASCII letter; accented letters are not letters.
constexpr bool EhLetra(char16_t ACaractere) noexcept {
    return (ACaractere >= u'A' && ACaractere <= u'Z') || (ACaractere >= u'a' && ACaractere <= u'z');
}
/// What trimming removes: the space and the controls.
constexpr bool EhBranco(char16_t ACaractere) noexcept { return ACaractere <= u' '; }

/// ATexto without the blanks at both ends.
constexpr std::u16string_view Aparar(std::u16string_view ATexto) noexcept {
    while (!ATexto.empty() && EhBranco(ATexto.front())) ATexto.remove_prefix(1);
    while (!ATexto.empty() && EhBranco(ATexto.back())) ATexto.remove_suffix(1);
    return ATexto;
}

}  // namespace OryUtils
