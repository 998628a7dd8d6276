#pragma once

#include <cstddef>
#include <string_view>

// Parts of a file's name as it is written; nothing is asked of the system. "\" and "/" part folders on every system,
// and so does the ":" of a drive ("C:nome.txt"). Each result is a piece of the argument.

namespace OryUtils {

/// Length of the folder of AArquivo with its last delimiter; 0 without a folder.
constexpr std::size_t BuscarTamanhoDaPasta(std::u16string_view AArquivo) noexcept {
    const std::size_t barra = AArquivo.find_last_of(u"\\/");
    if (barra != AArquivo.npos) return barra + 1;
    return AArquivo.size() >= 2 && AArquivo[1] == u':' ? 2 : 0;
}

/// The folder with its last delimiter; empty without one.
/// Example:  "C:\Logs\a.txt" -> "C:\Logs\"
constexpr std::u16string_view ExtrairPastaDoArquivo(std::u16string_view AArquivo) noexcept {
    return AArquivo.substr(0, BuscarTamanhoDaPasta(AArquivo));
}
/// The name without the folder.
/// Example:  "C:\Logs\a.txt" -> "a.txt"
constexpr std::u16string_view ExtrairNomeDoArquivo(std::u16string_view AArquivo) noexcept {
    return AArquivo.substr(BuscarTamanhoDaPasta(AArquivo));
}
/// The last extension with its dot; empty without one.
/// Example:  "a.tar.gz" -> ".gz", ".profile" -> ".profile"
constexpr std::u16string_view ExtrairExtensaoDoArquivo(std::u16string_view AArquivo) noexcept {
    const std::u16string_view nome = ExtrairNomeDoArquivo(AArquivo);
    const std::size_t ponto = nome.rfind(u'.');
    return ponto == nome.npos ? std::u16string_view() : nome.substr(ponto);
}

}  // namespace OryUtils
