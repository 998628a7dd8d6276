#include "toolkits/qt/interno/AcessoQt.hpp"

#include "toolkits/qt/interno/JanelaQt.hpp"
#include "toolkits/qt/interno/TextoQt.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

namespace OryUtils {
namespace {

constexpr std::u16string_view CNomeDaMensagem = u"Message", CNomeDaRolagem = u"MessageMemo";

QString BuscarNomeDoIcone(int AId) {
    switch (AId) {
        case 32513:
            return QStringLiteral("Erro");
        case 32514:
            return QStringLiteral("Pergunta");
        case 32515:
            return QStringLiteral("Aviso");
        default:
            return QStringLiteral("Informação");
    }
}

const TControleFormulario* BuscarAnterior(const TControleFormulario& AControle) {
    const auto& controles = AControle.GetFormulario().GetControles();
    const auto este = std::ranges::find_if(controles, [&](const auto& c) { return c.get() == &AControle; });
    return este == controles.begin() ? nullptr : std::prev(este)->get();
}

class TAlertaFalado final : public QAccessibleWidget {
public:
    explicit TAlertaFalado(TJanelaQt& AJanela) : QAccessibleWidget(&AJanela, QAccessible::AlertMessage) {}

    QString text(QAccessible::Text AQual) const override {
        const auto& formulario = static_cast<TJanelaQt*>(widget())->GetFormulario();
        const auto* mensagem = formulario.BuscarControle(CNomeDaMensagem);
        if (AQual == QAccessible::Description && mensagem) return ParaQt(mensagem->GetTexto());
        return QAccessibleWidget::text(AQual);
    }
};

QAccessibleInterface* Criar(const QString&, QObject* AObjeto) {
    auto* janela = dynamic_cast<TJanelaQt*>(AObjeto);
    if (!janela) return nullptr;
    const auto& controles = janela->GetFormulario().GetControles();
    const bool alerta = std::ranges::any_of(controles, [](const auto& c) { return c->GetTipo() == tcIcone; });
    return alerta ? new TAlertaFalado(*janela) : nullptr;
}

}  // namespace

QString BuscarNomeFalado(const TControleFormulario& AControle) {
    if (AControle.GetTipo() == tcIcone) return BuscarNomeDoIcone(static_cast<const TIcone&>(AControle).GetIdIcone());
    if (AControle.GetTipo() != tcCaixaEdicao && AControle.GetTipo() != tcMemorando) return {};
    if (AControle.GetNome() == CNomeDaRolagem) return ParaQt(AControle.GetFormulario().GetTitulo());
    const TControleFormulario* anterior = BuscarAnterior(AControle);
    return ParaQt(anterior && anterior->GetTipo() == tcRotulo ? anterior->GetTexto() : AControle.GetNome());
}

void DeclararAlertas() {
    static const bool declarados = [] {
        QAccessible::installFactory(Criar);
        return true;
    }();
    static_cast<void>(declarados);
}

}  // namespace OryUtils
