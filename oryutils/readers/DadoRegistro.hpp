#pragma once

#include <cstdint>
#include <string>

namespace OryUtils::Interno {

/// Kinds of a value, numbered as the system numbers them; others may be read.
enum TTipoDadoRegistro : std::uint32_t {
    tdrNenhum = 0,
    tdrTexto = 1,
    tdrTextoExpansivel = 2,
    tdrBinario = 3,
    tdrInteiro = 4,
    tdrListaDeTextos = 7,
    tdrInteiro64 = 11,
};

/// A value as the registry keeps it. Texts are UTF-16LE with their terminators (Windows may add one that is missing),
/// integers little-endian.
struct TDadoRegistro {
    std::uint32_t Tipo = tdrNenhum;
    std::string Bytes{};

    bool operator==(const TDadoRegistro&) const = default;
};

}  // namespace OryUtils::Interno
