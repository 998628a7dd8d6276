#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"
#include "oryutils/files/interno/LinhasDoLog.hpp"
#include "oryutils/platform/Fluxo.hpp"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

class TAmbienteDoLog;

/// Brings the file of a log up to date. Nothing raises on input or output.
class TGravadorDoLog {
public:
    /// Asked at each attempt; none when there is no text to be written yet, and the attempt fails.
    using TBuscarTexto = std::function<std::optional<TTextoPronto>()>;

    /// Makes AArquivo hold the text, in up to 14 attempts without a pause; the missing folders are created first. True
    /// when it was done.
    /// AModo  mgReescrever: the file is created or written over in one piece, cut behind it and closed. mgAcrescentar:
    ///        the file stays open and a save writes what is new behind its end. A look at the name of the file comes
    ///        first when the last one is 100 ms old; when the name leads to another file, to none or to one of another
    ///        size, and after any fault, the save is as in mgReescrever.
    bool Gravar(std::u16string_view AArquivo, const TBuscarTexto& ABuscarTexto, TModoGravacao AModo,
                TAmbienteDoLog& AAmbiente);
    /// Closes a file that was kept open. The next save may still continue it, and looks at it first. False when the
    /// system tells only now that something was not written, as a full network disk may: the next save then writes the
    /// whole text.
    bool Soltar() noexcept;

private:
    bool PodeContinuar(std::u16string_view AArquivo, std::uint64_t AGeracao, TAmbienteDoLog& AAmbiente);
    bool Acrescentar(std::string_view ABytes, TAmbienteDoLog& AAmbiente);
    bool Reescrever(std::u16string_view AArquivo, const TTextoPronto& ATexto, bool AMarcar, TAmbienteDoLog& AAmbiente);

    Interno::TFluxo FFluxo{};
    std::optional<Interno::TMarcaDeArquivo> FMarca{};  // of the file as the last save left it, while it may go on
    std::u16string FArquivo{};
    std::uint64_t FGeracao = 0;
    std::chrono::steady_clock::time_point FProximoOlhar{};
};

}  // namespace OryUtils
