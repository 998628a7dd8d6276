#include "toolkits/qt/interno/NavegacaoQt.hpp"

#include "toolkits/qt/interno/GrupoOpcoesQt.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <algorithm>

namespace OryUtils {
namespace {

bool PodeReceberFoco(const QAbstractButton* ABotao) { return ABotao->isVisible() && ABotao->isEnabled(); }

// ABotoes in the order in which a step forward from the focused one meets them.
QList<QAbstractButton*> AposOFocado(QList<QAbstractButton*> ABotoes) {
    const auto focado = std::ranges::find_if(ABotoes, &QWidget::hasFocus);
    if (focado != ABotoes.end()) std::rotate(ABotoes.begin(), focado + 1, ABotoes.end());
    return ABotoes;
}

bool HaSelecaoNoFoco(const QWidget& AJanela) {
    const auto* caixa = qobject_cast<const QLineEdit*>(AJanela.focusWidget());
    const auto* memorando = qobject_cast<const QPlainTextEdit*>(AJanela.focusWidget());
    return (caixa && caixa->hasSelectedText()) || (memorando && memorando->textCursor().hasSelection());
}

const QLabel* BuscarRotuloSelecionado(const QWidget& AJanela) {
    const auto rotulos = AJanela.findChildren<const QLabel*>();
    const auto achado = std::ranges::find_if(rotulos, &QLabel::hasSelectedText);
    return achado == rotulos.end() ? nullptr : *achado;
}

}  // namespace

QList<QAbstractButton*> BuscarBotoesDe(const TControleFormulario& AControle, QWidget* AWidget) {
    if (AWidget && AControle.GetTipo() == tcGrupoOpcoes) {
        const auto& opcoes = static_cast<TGrupoOpcoesQt*>(AWidget)->GetBotoes();
        return {opcoes.begin(), opcoes.end()};
    }
    auto* botao = qobject_cast<QAbstractButton*>(AWidget);
    return botao ? QList<QAbstractButton*>{botao} : QList<QAbstractButton*>{};
}

bool PressionarLetra(const QList<QAbstractButton*>& ABotoes, const QKeyEvent& ATecla) {
    const QString texto = ATecla.text();
    if (ATecla.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) return false;
    if (texto.size() != 1 || !texto[0].isPrint() || texto[0].isSpace()) return false;
    const QKeySequence letra(Qt::ALT | static_cast<Qt::Key>(texto[0].toUpper().unicode()));
    const QList<QAbstractButton*> botoes = AposOFocado(ABotoes);
    const auto achado = std::ranges::find_if(
        botoes, [&](const QAbstractButton* b) { return b->shortcut() == letra && PodeReceberFoco(b); });
    if (achado == botoes.end()) return false;
    (*achado)->setFocus(Qt::ShortcutFocusReason);
    (*achado)->click();
    return true;
}

bool AndarComSetas(const QList<QAbstractButton*>& ABotoes, const QKeyEvent& ATecla) {
    const bool avanca = ATecla.key() == Qt::Key_Down || ATecla.key() == Qt::Key_Right;
    const bool volta = ATecla.key() == Qt::Key_Up || ATecla.key() == Qt::Key_Left;
    if ((!avanca && !volta) || ATecla.modifiers() & ~Qt::KeypadModifier) return false;
    QList<QAbstractButton*> botoes = AposOFocado(ABotoes);
    // The focused one is the last; going back it is met last, too.
    if (volta && !botoes.isEmpty()) std::reverse(botoes.begin(), botoes.end() - 1);
    const auto proximo = std::ranges::find_if(botoes, PodeReceberFoco);
    if (proximo == botoes.end()) return true;
    (*proximo)->setFocus(avanca ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    if (qobject_cast<QRadioButton*>(*proximo)) (*proximo)->click();
    return true;
}

bool HaTextoSelecionado(const QWidget& AJanela) { return HaSelecaoNoFoco(AJanela) || BuscarRotuloSelecionado(AJanela); }

bool CopiarDoRotulo(const QWidget& AJanela, const QKeyEvent& ATecla) {
    const QLabel* rotulo = BuscarRotuloSelecionado(AJanela);
    if (!rotulo || !ATecla.matches(QKeySequence::Copy) || HaSelecaoNoFoco(AJanela)) return false;
    QGuiApplication::clipboard()->setText(rotulo->selectedText());
    return true;
}

}  // namespace OryUtils
