#pragma once

#include "oryutils/platform/windows/Windows.hpp"

#include <string>

namespace OryUtils::Interno {

/// What a screen reader is told of a window; the system tells what is empty here.
struct TFalado {
    std::u16string Nome, Descricao{};
    long Papel = 0;  ///< ROLE_SYSTEM_...
};

/// The answer to WM_GETOBJECT with the parameter AW, which asks for the inside of AJanela. 0 where the system has no
/// screen readers.
LRESULT ResponderLeitorDeTela(HWND AJanela, WPARAM AW, TFalado AFalado);

}  // namespace OryUtils::Interno
