#pragma once

#include "oryutils/runtime/Objeto.hpp"

namespace OryUtils {

/// A control of the host's form as the library sees it: who it is, whether it can take the focus, and taking it.
/// Adapters wrap a native control; two adapters of the same native control are the same control.
class TWinControl : public TObjeto {
public:
    /// What tells this control from every other one: the native handle or widget.
    virtual const void* GetIdentidade() const noexcept { return this; }
    /// Enabled, visible, and so are its parents.
    virtual bool PodeReceberFoco() const = 0;
    /// Takes the input focus. Call only when PodeReceberFoco.
    virtual void ReceberFoco() = 0;
};

/// True when both are the same control (also when both are absent).
inline bool EhMesmoControle(const TWinControl* AUm, const TWinControl* AOutro) noexcept {
    if (AUm == AOutro) return true;
    return AUm && AOutro && AUm->GetIdentidade() == AOutro->GetIdentidade();
}

}  // namespace OryUtils
