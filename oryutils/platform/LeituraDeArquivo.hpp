#pragma once

#include "oryutils/platform/DadosDoArquivo.hpp"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace OryUtils::Interno {

/// A file of the disk open for reading at any place. Folders, pipes and devices are not opened. Others may go on
/// writing to it, renaming and deleting it. Nothing throws, short of memory.
class TLeituraDeArquivo {
public:
    explicit TLeituraDeArquivo(std::u16string_view AArquivo);
    TLeituraDeArquivo(const TLeituraDeArquivo&) = delete;
    TLeituraDeArquivo& operator=(const TLeituraDeArquivo&) = delete;
    ~TLeituraDeArquivo();

    bool EstahAberto() const noexcept { return FAlca != CNenhum; }
    /// Bytes of the file from AInicio on into ADestino; how many were read: fewer only at the end of the file or on an
    /// error.
    std::size_t Ler(std::uint64_t AInicio, std::span<char> ADestino) const noexcept;
    /// Last-write time; 0 when the file is not open.
    TInstanteUtc BuscarUltimaGravacao() const noexcept;

private:
    static constexpr std::intptr_t CNenhum = -1;
    std::intptr_t FAlca = CNenhum;  // file descriptor or HANDLE
};

}  // namespace OryUtils::Interno
