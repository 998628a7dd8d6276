#pragma once

#include "oryutils/OryExport.hpp"

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// True when stdin and stderr are terminals: somebody reads the question and can answer.
ORY_API bool PodeConversar();

/// Characters in a line of stderr's terminal; 0 when it is none.
ORY_API int BuscarColunasDoTerminal();

/// Writes to stderr: to a console of Windows as UTF-16, on Linux in the code set of the environment's locale ("?" for a
/// character that it does not have; the plain "C" locale counts as UTF-8), to anything else as UTF-8. Errors are
/// ignored.
ORY_API void EscreverNoErroPadrao(std::u16string_view ATexto);

/// Whether stdin's terminal shows what is typed, for passwords. Where there is none nothing happens. A program that is
/// ended from outside meanwhile, by Ctrl+C too, leaves a terminal that shows what is typed.
ORY_API void MostrarDigitado(bool AMostrar);

enum TLeituraDeLinha : int { llLinha, llFim, llTempo };

/// Waits for a line typed on stdin's terminal, at most ALimite (none: without end).
/// ALinha  out: the line without its end, for llLinha only
/// Result: llLinha; llFim when the input has ended; llTempo when the limit passed first. On Windows the limit counts
/// until the first key: a line once begun is waited for.
ORY_API TLeituraDeLinha LerLinhaDoTerminal(std::optional<std::chrono::milliseconds> ALimite, std::u16string& ALinha);

}  // namespace OryUtils::Interno
