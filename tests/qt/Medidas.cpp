// What a dialog of Qt shows, measured in its own widgets.
#include "qt/Roteiro.hpp"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QWindow>

namespace OryUtils {
namespace {

TRetangulo DeQRect(const QRect& A) { return {A.x(), A.y(), A.width(), A.height()}; }

bool Cabe(const QWidget& AWidget) {
    if (const auto* rotulo = qobject_cast<const QLabel*>(&AWidget))
        return rotulo->heightForWidth(rotulo->width()) <= rotulo->height();
    if (qobject_cast<const QPushButton*>(&AWidget)) {
        const QString texto = static_cast<const QPushButton&>(AWidget).text();
        const QSize tamanho = AWidget.fontMetrics().size(Qt::TextShowMnemonic, texto);
        return tamanho.width() + 4 <= AWidget.width() && tamanho.height() <= AWidget.height();
    }
    if (const auto* memorando = qobject_cast<const QPlainTextEdit*>(&AWidget)) {
        const int linha = memorando->fontMetrics().lineSpacing();
        const int altura = memorando->viewport()->height() - 2 * qRound(memorando->document()->documentMargin());
        return altura >= linha && altura % linha <= linha / 2;
    }
    if (const auto* lista = qobject_cast<const QListWidget*>(&AWidget))  // it scrolls
        return lista->viewport()->height() >= lista->fontMetrics().height();
    if (qobject_cast<const QLineEdit*>(&AWidget)) return AWidget.sizeHint().height() <= AWidget.height();
    return AWidget.sizeHint().width() <= AWidget.width() && AWidget.sizeHint().height() <= AWidget.height();
}

QString BuscarTexto(const QWidget& AWidget) {
    if (const auto* rotulo = qobject_cast<const QLabel*>(&AWidget)) return rotulo->text();
    if (const auto* botao = qobject_cast<const QAbstractButton*>(&AWidget)) return botao->text();
    if (const auto* memorando = qobject_cast<const QPlainTextEdit*>(&AWidget)) return memorando->toPlainText();
    return {};
}

bool EhControle(const QWidget& AWidget) {
    if (const auto* rotulo = qobject_cast<const QLabel*>(&AWidget)) return rotulo->pixmap().isNull();
    return qobject_cast<const QAbstractButton*>(&AWidget) || qobject_cast<const QLineEdit*>(&AWidget) ||
           qobject_cast<const QPlainTextEdit*>(&AWidget) || qobject_cast<const QListWidget*>(&AWidget);
}

/// The view in which AWidget scrolls; null for none.
const QWidget* BuscarVista(const QWidget& AWidget) {
    for (const QWidget* pai = AWidget.parentWidget(); pai; pai = pai->parentWidget())
        if (const auto* vista = qobject_cast<const QScrollArea*>(pai))
            return vista->verticalScrollBar()->isVisible() ? vista : nullptr;
    return nullptr;
}

}  // namespace

TVisao TUsuarioQt::Medir() {
    QDialog& janela = *BuscarDialogo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &janela; }));
    TVisao visao;
    visao.Janela = DeQRect(janela.frameGeometry());
    visao.Cliente = {janela.width(), janela.height()};
    for (QWidget* widget : janela.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !EhControle(*widget)) continue;
        const bool opcao = qobject_cast<QRadioButton*>(widget);
        visao.Controles.push_back({BuscarTexto(*widget).toStdU16String(),
                                   {},
                                   DeQRect({widget->mapTo(&janela, QPoint(0, 0)), widget->size()}),
                                   Cabe(*widget),
                                   widget->focusPolicy() != Qt::NoFocus && widget->isEnabled(),
                                   opcao,
                                   BuscarVista(*widget) != nullptr});
        // Tips are rich text.
        visao.Controles.back().Dica = widget->toolTip()
                                          .replace("&lt;", "<")
                                          .replace("&gt;", ">")
                                          .replace("&quot;", "\"")
                                          .replace("&amp;", "&")
                                          .toStdU16String();
    }
    const QWidget* primeiro = QApplication::focusWidget();
    for (int i = 0; i < 100; ++i) {
        const QWidget* focado = QApplication::focusWidget();
        if (!focado || (i > 0 && focado == primeiro)) break;
        const QWidget* vista = BuscarVista(*focado);
        const QPoint lugar = (vista ? vista : focado)->mapTo(&janela, QPoint(0, 0));
        visao.Tabulacao.push_back({lugar.x(), lugar.y(), 0, 0});
        DarTecla(Qt::Key_Tab);
    }
    return visao;
}

std::vector<TRetangulo> TUsuarioQt::BuscarTelas() {
    std::vector<TRetangulo> areas;
    for (const QScreen* tela : QGuiApplication::screens()) areas.push_back(DeQRect(tela->availableGeometry()));
    return areas;
}

void TUsuarioQt::AbrirEm(std::size_t ATela) {
    QScreen* tela = QGuiApplication::screens().at(static_cast<qsizetype>(ATela));
    FHospede = std::make_unique<QWidget>();
    FHospede->setScreen(tela);
    FHospede->setGeometry(QRect(tela->availableGeometry().topLeft(), QSize(60, 40)));
    FHospede->show();
    FHospede->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(FHospede.get()));
}

void TUsuarioQt::ArrastarPara(std::size_t ATela) {
    QScreen* tela = QGuiApplication::screens().at(static_cast<qsizetype>(ATela));
    QDialog& janela = *BuscarDialogo();
    janela.move(tela->availableGeometry().topLeft());
    janela.windowHandle()->setScreen(tela);
}

}  // namespace OryUtils
