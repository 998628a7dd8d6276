#include "toolkits/qt/interno/AcessoQt.hpp"

#include "oryutils/forms/NomeFalado.hpp"

#include "toolkits/qt/interno/JanelaQt.hpp"
#include "toolkits/qt/interno/TextoQt.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

namespace OryUtils {
namespace {

class TAlertaFalado final : public QAccessibleWidget {
public:
    explicit TAlertaFalado(TJanelaQt& AJanela) : QAccessibleWidget(&AJanela, QAccessible::AlertMessage) {}

    QString text(QAccessible::Text AQual) const override {
        if (AQual == QAccessible::Description)
            return ParaQt(BuscarMensagemFalada(static_cast<TJanelaQt*>(widget())->GetFormulario()));
        return QAccessibleWidget::text(AQual);
    }
};

QAccessibleInterface* Criar(const QString&, QObject* AObjeto) {
    auto* janela = dynamic_cast<TJanelaQt*>(AObjeto);
    if (!janela) return nullptr;
    return EhAlerta(janela->GetFormulario()) ? new TAlertaFalado(*janela) : nullptr;
}

}  // namespace

void DeclararAlertas() {
    static const bool declarados = [] {
        QAccessible::installFactory(Criar);
        return true;
    }();
    static_cast<void>(declarados);
}

}  // namespace OryUtils
