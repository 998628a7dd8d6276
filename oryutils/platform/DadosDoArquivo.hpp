#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// What the system keeps about a file. A name with the character of code 0 is of no file. Nothing throws, short of
// memory.

namespace OryUtils::Interno {

/// An instant in milliseconds since 1970-01-01 00:00 UTC; negative before.
using TInstanteUtc = std::int64_t;

struct TDadosDoArquivo {
    std::u16string Nome;        // as the file system stores it, without the folder
    std::uint64_t Tamanho = 0;  // bytes; 0 for a folder
    TInstanteUtc UltimaGravacao = 0;
    bool EhPasta = false;
};

/// Looks AArquivo up in its folder. None when it is not there or the folder may not be asked.
/// (Windows) "*" and "?" find the first name that they match.
std::optional<TDadosDoArquivo> ProcurarArquivo(std::u16string_view AArquivo);

/// True when AArquivo is there and is no folder.
bool ExisteArquivo(std::u16string_view AArquivo);

/// Sets the last-write time of a file. False when the system refuses or has no such instant.
bool AlterarUltimaGravacao(std::u16string_view AArquivo, TInstanteUtc AInstante);

}  // namespace OryUtils::Interno
