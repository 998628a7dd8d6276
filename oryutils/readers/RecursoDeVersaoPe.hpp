#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace OryUtils::Interno {

/// Bytes that can be read at any place, as those of a file.
class TFonteDeBytes {
public:
    virtual ~TFonteDeBytes() = default;
    /// The bytes from AInicio on; how many there were.
    virtual std::size_t Ler(std::uint64_t AInicio, std::span<char> ADestino) const = 0;
};

/// The bytes of the version resource of a PE file (type 16, name 1), of at most 64 KiB; empty when there is none or
/// anything on the way to it is broken. Of several languages the one is taken that the version functions take on a
/// Windows in English: no language, then English, then the first. Only what lies on the way is read, whatever the size
/// of the file, and no value found in it is trusted.
std::vector<char> LerRecursoDeVersaoPe(const TFonteDeBytes& AFonte);

}  // namespace OryUtils::Interno
