#pragma once

#include "oryutils/types/OryTypesFormatos.hpp"

namespace OryUtils::Interno {

/// Date and number formats of the user's locale, read from the system: GetLocaleInfoEx on Windows, the locale named
/// by LC_ALL, LC_TIME, LC_NUMERIC or LANG on Linux. Never throws for a missing locale: what the system does not tell
/// keeps the values of the invariant ("C") locale.
OryTypes::TFormatSettings BuscarFormatosDoSistema();

}  // namespace OryUtils::Interno
