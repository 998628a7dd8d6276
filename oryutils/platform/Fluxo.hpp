#pragma once

#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/ErroDoSistema.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Which file it is, and its size. Two equal marks: nobody has put another file in its place, lengthened or cut it.
struct TMarcaDeArquivo {
    std::uint64_t Volume = 0;
    std::uint64_t Indice = 0;  // of the file in its volume
    std::uint64_t Tamanho = 0;
    bool operator==(const TMarcaDeArquivo&) const = default;
};
/// The mark of the file that ANome leads to now; none for what is no file or cannot be asked.
std::optional<TMarcaDeArquivo> BuscarMarcaDoArquivo(const std::string& ANome);

/// An open file or a standard stream, as bytes: nothing is buffered or translated. Names are UTF-8 on Windows and the
/// system's own bytes on Linux. Closes what it opened when it goes; the standard streams stay open.
class TFluxo {
public:
    TFluxo() = default;
    TFluxo(TFluxo&& AOutro) noexcept;
    TFluxo& operator=(TFluxo&& AOutro) noexcept;
    ~TFluxo();

    static TFluxo EntradaPadrao() noexcept;
    static TFluxo SaidaPadrao() noexcept;
    static TFluxo ErroPadrao() noexcept;

    TErroFluxo AbrirParaLer(const std::string& ANome);
    /// Opens a file of the disk for reading; efOutro for a pipe or a device, which might keep the reader waiting.
    /// Others may go on writing to it, renaming and deleting it.
    TErroFluxo AbrirArquivoParaLer(std::u16string_view AArquivo);
    /// Creates a file that must not exist yet, for writing. ASubstituido, when given, is the file whose name it takes
    /// later: on Linux who may read and write that one, where it exists, may do so with the new one from the beginning
    /// and nobody else. On Windows the folder says who may.
    TErroFluxo CriarNovo(const std::string& ANome, const std::string& ASubstituido = {});
    /// Creates a file, or opens the one that is there, for writing from its start: what stands behind the written bytes
    /// stays until CortarAqui. Others may read and write it meanwhile.
    TErroFluxo AbrirParaReescrever(const std::string& ANome);
    /// A file ends where the last byte was written; anything but a file stays as it is.
    TErroFluxo CortarAqui() noexcept;
    /// Opens an existing file for writing behind its end, also where another program has moved that end. Others may
    /// read, write, rename and delete it meanwhile. (Windows) Who opens it must let others write.
    TErroFluxo AbrirParaAcrescentar(const std::string& ANome);
    /// Takes over what an opening call of the system gave, -1 for its failure. Nothing may be open.
    TErroFluxo Assumir(std::intptr_t AAlca) noexcept;
    /// Also tells of what the system could only now not write. A closed stream gives efNenhum.
    TErroFluxo Fechar() noexcept;
    bool EstahAberto() const noexcept { return FAlca != CNenhum; }

    /// Waits for input and reads at most ADestino.size() bytes; 0 at the end of input or on an error, told by AErro.
    std::size_t Ler(std::span<char> ADestino, TErroFluxo& AErro) noexcept;
    /// Bytes of a file from AInicio on; how many were read: fewer only at the end of the file or on an error.
    std::size_t LerEm(std::uint64_t AInicio, std::span<char> ADestino) const noexcept;
    /// Writes everything or gives the error.
    TErroFluxo Escrever(std::string_view ABytes) noexcept;

    /// Bytes of a file; none when the stream is not a file.
    std::optional<std::uint64_t> BuscarTamanho() const noexcept;
    /// Last-write time of a file; 0 when the system does not tell.
    TInstanteUtc BuscarUltimaGravacao() const noexcept;
    /// The mark of a file; none when the system does not tell.
    std::optional<TMarcaDeArquivo> BuscarMarca() const noexcept;
    /// The file descriptor or HANDLE, for other calls of the system; below zero when nothing is open.
    std::intptr_t GetAlca() const noexcept { return FAlca; }
    bool EhTerminal() const noexcept;
    /// True when Ler would have to wait for whoever writes the other end.
    bool LerEsperaria() const noexcept;
    /// Columns of the terminal; 80 when it is none or does not tell.
    int BuscarLarguraDoTerminal() const noexcept;

private:
    static constexpr std::intptr_t CNenhum = -1;

    std::intptr_t FAlca = CNenhum;  // file descriptor or HANDLE
    bool FDono = false;
};

}  // namespace OryUtils::Interno
