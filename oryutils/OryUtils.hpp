#pragma once

#include "oryutils/OryExport.hpp"

namespace OryUtils {

/// Starts every unit: creates its global instance (GOryUtilsStrings, ...) unless there is one already. Starts are
/// counted; only the first acts. Loading the library is one start, so programs need not call this.
ORY_API void IniciarOryUtils();

/// Undoes one IniciarOryUtils; the last one frees the global instances. One call too many does nothing.
ORY_API void FinalizarOryUtils() noexcept;

/// How many starts are not yet undone; at least 1 while the library is loaded and nobody stopped it by hand.
ORY_API int BuscarContadorInicioOryUtils() noexcept;

/// Version of the library, "0.1.0".
ORY_API const char* BuscarVersaoOryUtils() noexcept;

}  // namespace OryUtils
