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

/// ADona, a window of any program, owns the dialogs that no window of this thread owns; null: nobody does.
void DefinirDona(HWND ADona) noexcept;

/// The window that a new dialog of this thread belongs to: the active one, else that of DefinirDona, else the first
/// visible one; may be null.
HWND BuscarDona();

}  // namespace OryUtils::Interno
