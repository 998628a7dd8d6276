#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace OryUtils::Interno {

// Each character of the first row becomes the one below it. The apostrophe at the end is deliberate: files and labels
// have carried a double quote in its place since the first version.
// clang-format off
inline constexpr std::u16string_view CComAcento =
    u"áéíóúÁÉÍÓÚàèìòùÀÈÌÒÙâêîôûÂÊÎÔÛãõÃÕäëïöüÄËÏÖÜçÇ'";
inline constexpr std::u16string_view CSemAcento =
    u"aeiouAEIOUaeiouAEIOUaeiouAEIOUaoAOaeiouAEIOUcC\"";
// clang-format on
static_assert(CComAcento.size() == 47 && CSemAcento.size() == 47);

// All of them have 8-bit codes.
inline constexpr auto CTabelaSemAcento = [] {
    std::array<char16_t, 256> tabela{};
    for (std::size_t i = 0; i < tabela.size(); ++i) tabela[i] = static_cast<char16_t>(i);
    for (std::size_t i = 0; i < CComAcento.size(); ++i) tabela.at(CComAcento[i]) = CSemAcento[i];
    return tabela;
}();

constexpr char16_t SemAcento(char16_t ACaractere) noexcept {
    return ACaractere < CTabelaSemAcento.size() ? CTabelaSemAcento[ACaractere] : ACaractere;
}

}  // namespace OryUtils::Interno
