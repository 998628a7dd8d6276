#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"
#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <string_view>

namespace OryUtils {

/// One line was added: the log, the line as stored (with its date and time, where it has them) and the colour that the
/// caller asked for.
using TEventoOnStatusLog = TEvento<TObjeto* /*ASender*/, std::u16string_view /*AStatus*/, TColor /*ACor*/>;

/// The log was finished and saved: the log and the folder of its file with the delimiter behind it (empty when the file
/// was named without a folder).
using TEventoAposFinalizarLog = TEvento<TObjeto* /*ASender*/, std::u16string_view /*APastaLogs*/>;

}  // namespace OryUtils
