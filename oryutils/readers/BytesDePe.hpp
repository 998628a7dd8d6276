#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace OryUtils::Interno {

// Numbers of PE files: low byte first, at any place. The caller has made sure that the bytes are there.

inline std::uint16_t LerPalavra(std::span<const char> ABytes, std::size_t AInicio) noexcept {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(ABytes[AInicio + i]); };
    return static_cast<std::uint16_t>(byte(0) | byte(1) << 8);
}
inline std::uint32_t LerPalavraDupla(std::span<const char> ABytes, std::size_t AInicio) noexcept {
    return LerPalavra(ABytes, AInicio) | std::uint32_t{LerPalavra(ABytes, AInicio + 2)} << 16;
}

}  // namespace OryUtils::Interno
