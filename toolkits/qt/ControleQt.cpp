#include "toolkits/qt/ControleQt.hpp"

namespace OryUtils {

const void* TControleQt::GetIdentidade() const noexcept {
    if (FWidget) return FWidget.data();
    return this;
}

bool TControleQt::PodeReceberFoco() const {
    return FWidget && FWidget->isEnabled() && FWidget->isVisible() && FWidget->focusPolicy() != Qt::NoFocus;
}

void TControleQt::ReceberFoco() {
    if (!FWidget) return;
    if (!FWidget->isActiveWindow()) FWidget->activateWindow();
    FWidget->setFocus(Qt::OtherFocusReason);
}

}  // namespace OryUtils
