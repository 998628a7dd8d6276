#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-16LE as files and the registry keep it, whatever the order of bytes of the machine.
namespace OryUtils::Interno {

/// A last odd byte is left out.
inline std::u16string UnidadesDeBytes(std::string_view ABytes) {
    std::u16string texto(ABytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < texto.size(); ++i)
        texto[i] = static_cast<char16_t>(static_cast<unsigned char>(ABytes[2 * i]) |
                                         static_cast<unsigned char>(ABytes[2 * i + 1]) << 8);
    return texto;
}

inline std::string BytesDeUnidades(std::u16string_view ATexto) {
    std::string bytes(ATexto.size() * 2, '\0');
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        bytes[2 * i] = static_cast<char>(ATexto[i] & 0xFF);
        bytes[2 * i + 1] = static_cast<char>(ATexto[i] >> 8);
    }
    return bytes;
}

}  // namespace OryUtils::Interno
