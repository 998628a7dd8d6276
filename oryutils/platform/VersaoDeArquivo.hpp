#pragma once

#include "oryutils/readers/BlocoDeVersao.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The version resource of a file, read once, and the three questions that are asked of it. (Windows) The system's
/// version functions answer. (Linux) An own reader of PE files, of 32 and 64 bits, does. A file that is missing, is no
/// such file or is broken has none. Nothing throws, short of memory.
class TVersaoDeArquivo {
public:
    explicit TVersaoDeArquivo(std::u16string_view AArquivo);

    bool Existe() const noexcept { return !FBloco.empty(); }
    /// Query "\".
    std::optional<TVersaoFixa> ConsultarFixa() const;
    /// Query "\VarFileInfo\Translation": its first entry.
    std::optional<TTraducao> ConsultarTraducao() const;
    /// Query "\StringFileInfo\ATabela\AChave": the text up to its first character of code 0.
    std::optional<std::u16string> ConsultarTexto(std::u16string_view ATabela, std::u16string_view AChave) const;

private:
    std::vector<char> FBloco;
};

}  // namespace OryUtils::Interno
