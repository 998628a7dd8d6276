#pragma once

#include "oryutils/fields/EditorDeCampo.hpp"

#include "toolkits/qt/OryQtExport.hpp"

#include <QLineEdit>
#include <QObject>
#include <QPointer>

namespace OryUtils {

/// Binds a line edit of a Qt host to a field while it lives (see TEditorDeCampo). Ctrl+Z, and Esc outside of dialogs,
/// bring back what stood there on entering. When the widget is gone the binding does nothing more. A read-only widget
/// shows the field and changes nothing.
/// Example:
///   FormatarCPF(FCpf);
///   TEdicaoMascaradaQt edicao(ui.cpf, FCpf);
class ORY_QT_API TEdicaoMascaradaQt final : public QObject, public TEditorDeCampo {
public:
    /// Shows the field's value at once. Raises EConvertError for a broken mask.
    TEdicaoMascaradaQt(QLineEdit* AWidget, TField& ACampo);
    ~TEdicaoMascaradaQt() override;

    QLineEdit* GetWidget() const noexcept { return FWidget.data(); }
    bool eventFilter(QObject* AObjeto, QEvent* AEvento) override;

protected:
    TEdicaoMascara Ler() const override;
    void Mostrar(const TEdicaoMascara& AEdicao) override;
    bool EhSomenteLeitura() const override;
    void Bipar() override;

private:
    bool TratarTecla(const QKeyEvent& ATecla);
    bool Compor(const QInputMethodEvent& AEvento);
    void DigitarTudo(const QString& ATexto);
    void Soltar(QDropEvent& AEvento);
    void AoEditar();
    void ConferirTexto();

    QPointer<QLineEdit> FWidget;
    /// The box before the edit that is under way.
    TEdicaoMascara FAntes;
    /// The text that the editor knows of.
    QString FConferido;
    bool FEscrevendo = false;
};

}  // namespace OryUtils
