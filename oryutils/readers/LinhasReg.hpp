#pragma once

#include <cstddef>
#include <string_view>

// Blanks and line ends of an exported registry file.
namespace OryUtils::Interno {

constexpr bool EhEspaco(char16_t ACaractere) noexcept { return ACaractere == u' ' || ACaractere == u'\t'; }
constexpr bool EhFimDeLinha(char16_t ACaractere) noexcept { return ACaractere == u'\r' || ACaractere == u'\n'; }

constexpr std::size_t PularEspacos(std::u16string_view ATexto, std::size_t APosicao) noexcept {
    while (APosicao < ATexto.size() && EhEspaco(ATexto[APosicao])) ++APosicao;
    return APosicao;
}

/// Where the next line starts: behind the next CR LF, CR or LF, or at the end of the text.
constexpr std::size_t BuscarProximaLinha(std::u16string_view ATexto, std::size_t APosicao) noexcept {
    while (APosicao < ATexto.size() && !EhFimDeLinha(ATexto[APosicao])) ++APosicao;
    if (APosicao == ATexto.size()) return APosicao;
    return APosicao + (ATexto.substr(APosicao).starts_with(u"\r\n") ? 2 : 1);
}

}  // namespace OryUtils::Interno
