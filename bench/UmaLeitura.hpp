#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

/// The limit that memory sets: all bytes read once, eight at a time, with nothing understood of them.
inline std::uint64_t LerUmaVez(const void* ADados, std::size_t ABytes) {
    const char* dados = static_cast<const char*>(ADados);
    std::uint64_t soma = 0;
    for (; ABytes >= sizeof soma; dados += sizeof soma, ABytes -= sizeof soma) {
        std::uint64_t palavra;
        std::memcpy(&palavra, dados, sizeof palavra);
        soma += palavra;
    }
    for (; ABytes; ++dados, --ABytes) soma += static_cast<unsigned char>(*dados);
    return soma;
}
template <typename TTexto>
std::uint64_t LerUmaVez(const TTexto& ATexto) {
    return LerUmaVez(ATexto.data(), ATexto.size() * sizeof(typename TTexto::value_type));
}
