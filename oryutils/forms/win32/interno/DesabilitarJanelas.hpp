#pragma once

#include "oryutils/platform/windows/Windows.hpp"

#include <vector>

namespace OryUtils::Interno {

/// While it lives, the visible top-level windows of this thread, AExceto apart, take no input. Those that took it
/// before take it again afterwards.
class TDesabilitarJanelas {
public:
    explicit TDesabilitarJanelas(HWND AExceto);
    ~TDesabilitarJanelas();
    TDesabilitarJanelas(const TDesabilitarJanelas&) = delete;
    TDesabilitarJanelas& operator=(const TDesabilitarJanelas&) = delete;

private:
    HWND FExceto;
    std::vector<HWND> FJanelas;
};

/// The window that a new dialog of this thread belongs to: the active one, else the first visible one; may be null.
HWND BuscarDona();

}  // namespace OryUtils::Interno
