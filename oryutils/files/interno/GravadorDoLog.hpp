#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"
#include "oryutils/files/interno/LinhasDoLog.hpp"
#include "oryutils/platform/ArquivoVigiado.hpp"
#include "oryutils/platform/Fluxo.hpp"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

class TAmbienteDoLog;

/// Brings the file of a log up to date. Nothing raises on input or output.
class TGravadorDoLog {
public:
    /// Makes AArquivo hold ATexto, in up to 14 attempts without a pause; the missing folders are created first. True
    /// when it was done.
    /// AModo  mgReescrever: the file is created or emptied, written in one piece and closed. mgAcrescentar: what is new
    ///        is put behind the file's end when the file is what the last save left there; otherwise, and after any
    ///        fault, as mgReescrever.
    bool Gravar(std::u16string_view AArquivo, const TTextoPronto& ATexto, TModoGravacao AModo,
                TAmbienteDoLog& AAmbiente);

    /// Lets go of a file kept open; a later save may still continue it.
    void Soltar() noexcept;
    /// Takes the file as it is now for what the last save left there, when nothing but its time has changed.
    void AceitarNovaData();
    /// The next save writes the whole text.
    void Esquecer() noexcept;

private:
    enum TResultado : int { reFeito, reMudou, reFalhou };

    bool Tentar(std::u16string_view AArquivo, const TTextoPronto& ATexto, TModoGravacao AModo,
                TAmbienteDoLog& AAmbiente);
    TResultado Acrescentar(std::string_view ABytes, TAmbienteDoLog& AAmbiente);
    TResultado AcrescentarAbrindo(std::string_view ABytes, TAmbienteDoLog& AAmbiente);
    bool Reescrever(std::string_view ABytes, bool AMarcar, TAmbienteDoLog& AAmbiente);

    // What the last save left, while it may be continued; stale while FVigiado keeps the file open.
    std::optional<Interno::TMarcaDeArquivo> FMarca{};
    std::u16string FArquivo{};
    std::uint64_t FGeracao = 0;
    std::size_t FGravados = 0;     // bytes
    bool FPastaConferida = false;  // in the present save
    Interno::TArquivoVigiado FVigiado{};
    int FSeguidos = 0;  // appends in a row that opened the file
};

}  // namespace OryUtils
