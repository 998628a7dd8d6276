#include "toolkits/qt/interno/EncaixeQt.hpp"

#include "toolkits/qt/interno/TextoQt.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QFontMetrics>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <QStyle>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace OryUtils {
namespace {

// The widget draws its text a little wider than it measures.
constexpr int CSobra = 2;

// ATexto in lines of at most ALargura, parted at blanks and inside words that are wider.
QStringList Quebrar(const QString& ATexto, const QFont& AFonte, int ALargura) {
    QStringList linhas;
    QTextOption opcao;
    opcao.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    for (const QString& paragrafo : ATexto.split(QLatin1Char('\n'))) {
        QTextLayout disposicao(paragrafo, AFonte);
        disposicao.setTextOption(opcao);
        disposicao.beginLayout();
        for (QTextLine linha = disposicao.createLine(); linha.isValid(); linha = disposicao.createLine()) {
            linha.setLineWidth(std::max(1, ALargura));
            linhas += paragrafo.mid(linha.textStart(), linha.textLength()).trimmed();
        }
        disposicao.endLayout();
        if (paragrafo.isEmpty()) linhas += QString();
    }
    return linhas;
}

// What a widget takes of its size hint besides the text: measured on one that is never shown.
template <typename T>
QSize BuscarFolga() {
    T modelo;
    modelo.setText(QStringLiteral("M"));
    return modelo.sizeHint() - modelo.fontMetrics().size(Qt::TextShowMnemonic, modelo.text());
}

// Left and right of the caption of a push button.
int BuscarMargens(const QAbstractButton& ABotao) {
    const auto medir = [&](QStyle::PixelMetric AQual) { return ABotao.style()->pixelMetric(AQual, nullptr, &ABotao); };
    return medir(QStyle::PM_ButtonMargin) + 2 * medir(QStyle::PM_DefaultFrameWidth) + CSobra;
}

QSize MedirMarcavel(QSize AFolga, const QString& ATexto, int ALarguraMaxima) {
    const QFontMetrics metricas(QApplication::font());
    const QStringList linhas = ALarguraMaxima > 0
                                   ? Quebrar(ATexto, QApplication::font(), ALarguraMaxima - AFolga.width() - CSobra)
                                   : ATexto.split(QLatin1Char('\n'));
    int largura = 0;
    for (const QString& linha : linhas) largura = std::max(largura, metricas.size(Qt::TextShowMnemonic, linha).width());
    const QSize texto = metricas.size(Qt::TextShowMnemonic, linhas.join(QLatin1Char('\n')));
    return {largura + AFolga.width() + CSobra, texto.height() + std::max(0, AFolga.height())};
}

QSize MedirMemorando(const QString& ATexto) {
    QPlainTextEdit modelo;
    const int linha = QFontMetrics(QApplication::font()).lineSpacing();
    const int linhas = static_cast<int>(ATexto.count(QLatin1Char('\n'))) + 1;
    const int bordas = 2 * (modelo.frameWidth() + qRound(modelo.document()->documentMargin()));
    return {bordas, linhas * linha + bordas};
}

}  // namespace

QSize MedirControleQt(TTipoControle ATipo, const QString& ATexto, int ALarguraMaxima) {
    switch (ATipo) {
        case tcBotao: {
            QPushButton modelo(ATexto.isEmpty() ? QStringLiteral(" ") : ATexto);
            modelo.setAutoDefault(false);
            const QSize folga = BuscarFolga<QPushButton>();
            const QSize texto = modelo.fontMetrics().size(Qt::TextShowMnemonic, modelo.text());
            // A size hint has a least width of its own, which the dialogs' rules stand for.
            return {texto.width() + BuscarMargens(modelo), texto.height() + folga.height()};
        }
        case tcCaixaChecagem:
            return MedirMarcavel(BuscarFolga<QCheckBox>(), ATexto, ALarguraMaxima);
        case tcGrupoOpcoes:
            return MedirMarcavel(BuscarFolga<QRadioButton>(), ATexto, ALarguraMaxima);
        case tcCaixaEdicao:
            return QLineEdit().sizeHint();
        case tcMemorando:
            return MedirMemorando(ATexto);
        case tcRotulo:
        case tcIcone:
        case tcProgresso:
        case tcListaEscolha:
            break;
    }
    return {};
}

void EncaixarTexto(QAbstractButton& ABotao, const QString& ATexto, bool AQuebra) {
    const bool ehBotao = qobject_cast<QPushButton*>(&ABotao) != nullptr;
    const QFontMetrics metricas = ABotao.fontMetrics();
    const QSize marca = qobject_cast<QCheckBox*>(&ABotao) ? BuscarFolga<QCheckBox>() : BuscarFolga<QRadioButton>();
    const int largura = ABotao.width() - (ehBotao ? BuscarMargens(ABotao) : marca.width() + CSobra);
    QString cabe = ATexto;
    bool inteiro = true;
    if (ABotao.width() > 0 && metricas.size(Qt::TextShowMnemonic, ATexto).width() > largura) {
        const QStringList linhas = AQuebra ? Quebrar(ATexto, ABotao.font(), largura) : QStringList{ATexto};
        const auto cabem = std::max(1, (ABotao.height() - std::max(0, marca.height())) / metricas.lineSpacing());
        cabe = linhas.join(QLatin1Char('\n'));
        if (!AQuebra || linhas.size() > cabem) {
            inteiro = false;
            const QString resto = AQuebra ? QStringList(linhas.mid(cabem - 1)).join(QLatin1Char(' ')) : ATexto;
            QStringList mostradas = AQuebra ? linhas.mid(0, cabem - 1) : QStringList{};
            const QString ultima = metricas.elidedText(resto, Qt::ElideRight, largura, Qt::TextShowMnemonic);
            mostradas += ultima.isEmpty() ? QString(QChar(0x2026)) : ultima;
            cabe = mostradas.join(QLatin1Char('\n'));
        }
    }
    ABotao.setText(cabe);
    const std::u16string completo = RemoverAtalho(DeQt(ATexto));
    ABotao.setToolTip(inteiro ? QString() : ParaQt(completo).toHtmlEscaped());
}

}  // namespace OryUtils
