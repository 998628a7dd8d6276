#pragma once

#include "oryutils/readers/DadoRegistro.hpp"

#include <algorithm>
#include <string>
#include <string_view>

// What a name of the registry may be, the same on every system.
namespace OryUtils::Interno {

inline constexpr std::size_t CMaiorNomeDeChave = 255;
inline constexpr std::size_t CMaiorNomeDeValor = 16383;
inline constexpr std::size_t CMaiorProfundidade = 512;

/// Characters that no line of an exported registry file can show in a name, and those that no name of Windows has.
inline constexpr std::u16string_view CProibidosEmNome{u"\0\r\n", 3};
inline constexpr std::u16string_view CProibidosNoWindows{u"\0", 1};

/// ACaminho without empty parts: "\Software\\Empresa\" is "Software\Empresa".
inline std::u16string NormalizarCaminho(std::u16string_view ACaminho) {
    std::u16string resultado;
    resultado.reserve(ACaminho.size());
    for (const char16_t c : ACaminho)
        if (c != u'\\' || (!resultado.empty() && resultado.back() != u'\\')) resultado += c;
    if (!resultado.empty() && resultado.back() == u'\\') resultado.pop_back();
    return resultado;
}

/// For a path without empty parts.
inline bool EhCaminhoValido(std::u16string_view ACaminho, std::u16string_view AProibidos = CProibidosEmNome) noexcept {
    if (ACaminho.find_first_of(AProibidos) != ACaminho.npos) return false;
    std::size_t niveis = 0;
    while (!ACaminho.empty()) {
        const std::size_t fim = ACaminho.find(u'\\');
        if (std::min(fim, ACaminho.size()) > CMaiorNomeDeChave || ++niveis > CMaiorProfundidade) return false;
        ACaminho.remove_prefix(fim == ACaminho.npos ? ACaminho.size() : fim + 1);
    }
    return true;
}

/// One part of a path.
inline bool EhNomeDeSubchaveValido(std::u16string_view ANome,
                                   std::u16string_view AProibidos = CProibidosEmNome) noexcept {
    return !ANome.empty() && ANome.find(u'\\') == ANome.npos && EhCaminhoValido(ANome, AProibidos);
}

inline bool EhNomeDeValorValido(std::u16string_view ANome, std::u16string_view AProibidos = CProibidosEmNome) noexcept {
    return ANome.size() <= CMaiorNomeDeValor && ANome.find_first_of(AProibidos) == ANome.npos;
}

}  // namespace OryUtils::Interno
