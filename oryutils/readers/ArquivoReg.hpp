#pragma once

#include "oryutils/readers/DadoRegistro.hpp"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The order of names whatever their letter case.
struct TOrdemSemCaixa {
    using is_transparent = void;
    bool operator()(std::u16string_view AUm, std::u16string_view AOutro) const noexcept;
};

/// A key of the registry: its values, and the keys below it. A name keeps the spelling with which it came first.
/// Paths have "\" between their parts and no empty part; the empty path is the key itself.
struct TChaveReg {
    std::map<std::u16string, TDadoRegistro, TOrdemSemCaixa> Valores{};
    std::map<std::u16string, std::unique_ptr<TChaveReg>, TOrdemSemCaixa> Subchaves{};

    /// The key at ACaminho; null when there is none.
    TChaveReg* Buscar(std::u16string_view ACaminho) noexcept;
    /// The key at ACaminho; it and those above it are created where they are missing.
    TChaveReg& Criar(std::u16string_view ACaminho);
    /// Deletes the key at ACaminho with all below it; false when there is none.
    bool Excluir(std::u16string_view ACaminho);
};

/// What an exported registry file says, "Windows Registry Editor Version 5.00" in UTF-16LE.
struct TArquivoReg {
    TChaveReg Topo{};  // the roots (HKEY_LOCAL_MACHINE) are right below it
    /// True when the file has lines that are neither understood nor comments: they count for nothing here.
    bool PerdeuLinhas = false;
};

/// Reads such a file as an import does, line by line from the top: a key given twice is one key, the later of two
/// values counts, [-key] takes away the key and "value"=- the value that came before, and a key also makes those above
/// it. None when ABytes is no such file: a byte too many, no byte order mark, another heading.
std::optional<TArquivoReg> LerArquivoReg(std::string_view ABytes);

/// The file that says what ATopo holds, keys and values in the order of their names. EhCaminhoValido and
/// EhNomeDeValorValido hold for all names.
std::string EscreverArquivoReg(const TChaveReg& ATopo);

}  // namespace OryUtils::Interno
