#pragma once

#include "oryutils/runtime/Controle.hpp"

#include "toolkits/qt/OryQtExport.hpp"

#include <QPointer>
#include <QWidget>

namespace OryUtils {

/// A Qt control of the host's window as the library sees it. Borrows the widget; once the widget is gone the adapter
/// takes no focus and equals only itself.
/// Example, in the exit handler of a line edit:
///   TControleQt controle(FCnpj);
///   ValidarDocumento(&controle, &controle, FCnpj->text().toStdU16String(), OryTypes::tiCNPJ);
class ORY_QT_API TControleQt final : public TWinControl {
public:
    explicit TControleQt(QWidget* AWidget) : FWidget(AWidget) {}

    QWidget* GetWidget() const noexcept { return FWidget.data(); }
    /// The widget's address: two adapters of one widget are the same control.
    const void* GetIdentidade() const noexcept override;
    /// Enabled, visible and so are its parents, and of a kind that takes the focus.
    bool PodeReceberFoco() const override;
    /// Also brings the widget's window to the front.
    void ReceberFoco() override;

private:
    QPointer<QWidget> FWidget;
};

}  // namespace OryUtils
