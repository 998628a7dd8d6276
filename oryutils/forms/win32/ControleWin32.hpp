#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Controle.hpp"

struct HWND__;

namespace OryUtils {

/// A control of a Win32 host, of any window class, for the validations and the focus helpers. It borrows the window:
/// nothing happens when that is destroyed, the adapter then only answers that it cannot take the focus. Two adapters
/// of one window are the same control. Use it on the thread of the window.
/// Example:
///   TControleWin32 campo(GetDlgItem(dialogo, IDC_CNPJ));
///   ValidouDocumento(&campo, &campo, texto, tiCNPJ);
class ORY_API TControleWin32 final : public TWinControl {
public:
    /// AJanela  an HWND; null makes a control that never takes the focus
    explicit TControleWin32(HWND__* AJanela) noexcept : FJanela(AJanela) {}

    HWND__* GetHandle() const noexcept { return FJanela; }
    const void* GetIdentidade() const noexcept override { return FJanela; }
    bool PodeReceberFoco() const override;
    void ReceberFoco() override;

private:
    HWND__* FJanela;
};

}  // namespace OryUtils
