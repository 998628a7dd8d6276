#pragma once

#include "oryutils/readers/DadoRegistro.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The text of an exported registry file, "Windows Registry Editor Version 5.00" in UTF-16LE, read and edited in
/// place: what an edit does not concern stays to the last character, comments and lines that make no sense included.
///
/// It is read as an import reads it, line by line from the top: a key given twice is one key, the later of two values
/// counts, [-key] takes away the key and "value"=- the value that came before, and a key also makes those above it.
/// Keys are full paths ("HKEY_LOCAL_MACHINE\Software") without empty parts; names are compared ignoring case.
class TArquivoReg {
public:
    /// No keys.
    TArquivoReg();
    /// None when ABytes is not such a file: a byte too many, no byte order mark, another heading.
    static std::optional<TArquivoReg> DeBytes(std::string_view ABytes);
    std::string ParaBytes() const;
    /// Of ParaBytes.
    std::size_t BuscarTamanho() const noexcept { return 2 * FTexto.size() + 2; }

    /// A root (a path of one part) is always there.
    bool ExisteChave(std::u16string_view AChave) const;
    std::optional<TDadoRegistro> Ler(std::u16string_view AChave, std::u16string_view AValor) const;
    std::vector<std::u16string> ListarSubchaves(std::u16string_view AChave) const;
    std::vector<std::u16string> ListarValores(std::u16string_view AChave) const;

    /// The editors expect names for which EhCaminhoValido and EhNomeDeValorValido hold.
    void CriarChave(std::u16string_view AChave);
    /// Creates the key when it is missing.
    void Gravar(std::u16string_view AChave, std::u16string_view AValor, const TDadoRegistro& ADado);
    /// False when there is no such value.
    bool ExcluirValor(std::u16string_view AChave, std::u16string_view AValor);
    /// With all below it; the keys above it stay. False when there is no such key.
    bool ExcluirChave(std::u16string_view AChave);

private:
    struct TAchado;
    TAchado Procurar(std::u16string_view AChave, std::u16string_view AValor) const;
    void AnexarSecao(std::u16string_view AChave);

    std::u16string FTexto;  // without the byte order mark
};

}  // namespace OryUtils::Interno
