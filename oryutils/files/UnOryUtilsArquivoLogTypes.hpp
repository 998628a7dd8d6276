#pragma once

#include <cstdint>

namespace OryUtils {

/// One file for all runs, its name as given, or one for each day, with the date in its name.
enum TTipoPeriodicidadeLog : int { tplUnico, tplDiario };

/// Messages with the date and time before them, or as given.
enum TTipoFormatoMensagem : int { tfmComDataHora, tfmSomenteTexto };

/// How a save brings the file up to date. See TOryUtilsArquivoLog::SetModoGravacao.
enum TModoGravacao : int { mgReescrever, mgAcrescentar };

/// Encoding of the log's file.
enum TCodificacaoLog : int {
    clPadrao,       ///< the system's: the default ANSI code page on Windows, UTF-8 on Linux
    clUtf8,         ///< UTF-8 without a mark, on every system
    clWindows1252,  ///< Windows-1252, on every system
};

/// A colour: bytes blue, green, red below a top byte; with 0xFF there the low byte is the index of a system colour.
using TColor = std::uint32_t;
inline constexpr TColor clBlue = 0x00FF0000;
inline constexpr TColor clWindowText = 0xFF000008;

}  // namespace OryUtils
