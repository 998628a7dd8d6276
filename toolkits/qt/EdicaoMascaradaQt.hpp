#pragma once

#include "oryutils/fields/EditorDeCampo.hpp"

#include "toolkits/qt/OryQtExport.hpp"

#include <QLineEdit>
#include <QObject>
#include <QPointer>

namespace OryUtils {

/// Binds a line edit of a Qt host to a field while it lives: typing, deleting, pasting and the arrow keys follow the
/// field's edit mask or number. When the widget is gone the binding does nothing more. A read-only widget is left
/// alone.
/// Example:
///   FormatarCPF(FCpf);
///   TEdicaoMascaradaQt edicao(ui.cpf, FCpf);
class ORY_QT_API TEdicaoMascaradaQt final : public QObject, public TEditorDeCampo {
public:
    /// Shows the field's value at once. Raises EConvertError for a broken mask.
    TEdicaoMascaradaQt(QLineEdit* AWidget, TField& ACampo);
    ~TEdicaoMascaradaQt() override;

    QLineEdit* GetWidget() const noexcept { return FWidget.data(); }
    void Gravar() override;
    bool eventFilter(QObject* AObjeto, QEvent* AEvento) override;

protected:
    void Mostrar(const TEdicaoMascara& AEdicao) override;

private:
    TEdicaoMascara Ler() const;
    bool TratarTecla(const QKeyEvent& ATecla);
    void AoEditar();

    QPointer<QLineEdit> FWidget;
    /// The box before the edit that is under way.
    TEdicaoMascara FAntes;
    bool FEscrevendo = false;
};

}  // namespace OryUtils
