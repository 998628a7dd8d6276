#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace OryUtils::Plataforma {

/// Why a stream or a file could not be used.
enum TErroFluxo : int {
    efNenhum,
    efNaoExiste,
    efJaExiste,
    efSemPermissao,
    efEhPasta,
    efDiscoCheio,
    efFechado,  // nobody reads the other end
    efOutro,
};

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
    /// Creates a file that must not exist yet, for writing.
    TErroFluxo CriarNovo(const std::string& ANome);
    /// Also tells of what the system could only now not write. A closed stream gives efNenhum.
    TErroFluxo Fechar() noexcept;

    /// Waits for input and reads at most ADestino.size() bytes; 0 at the end of input or on an error, told by AErro.
    std::size_t Ler(std::span<char> ADestino, TErroFluxo& AErro) noexcept;
    /// Writes everything or gives the error.
    TErroFluxo Escrever(std::string_view ABytes) noexcept;

    /// Bytes of a file; none when the stream is not a file.
    std::optional<std::uint64_t> BuscarTamanho() const noexcept;
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

}  // namespace OryUtils::Plataforma
