#include "toolkits/qt/interno/GrupoOpcoesQt.hpp"

#include "toolkits/qt/interno/TextoQt.hpp"

#include <QStyle>
#include <QStyleOptionButton>
#include <QTextLayout>

#include <algorithm>

namespace OryUtils {
namespace {

constexpr int CMargem = 8;

// ATexto in lines of at most ALargura; empty when it takes more than ALinhas.
QString QuebrarEmLinhas(const QString& ATexto, const QFont& AFonte, int ALargura, int ALinhas) {
    QTextLayout disposicao(ATexto, AFonte);
    QTextOption opcao;
    opcao.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    disposicao.setTextOption(opcao);
    QStringList linhas;
    disposicao.beginLayout();
    for (QTextLine linha = disposicao.createLine(); linha.isValid(); linha = disposicao.createLine()) {
        if (linhas.size() == ALinhas) return {};
        linha.setLineWidth(ALargura);
        linhas += ATexto.mid(linha.textStart(), linha.textLength()).trimmed();
    }
    disposicao.endLayout();
    return linhas.join(QLatin1Char('\n'));
}

// Width that the style leaves for the text beside the mark.
int BuscarEspacoDoTexto(const QRadioButton& ABotao) {
    QStyleOptionButton opcao;
    opcao.initFrom(&ABotao);
    return ABotao.style()->subElementRect(QStyle::SE_RadioButtonContents, &opcao, &ABotao).width() - 4;
}

}  // namespace

TGrupoOpcoesQt::TGrupoOpcoesQt(QWidget* APai, std::function<void(int)> AEscolheu) : QGroupBox(APai), FGrupo(this) {
    QObject::connect(&FGrupo, &QButtonGroup::idToggled, this,
                     [this, escolheu = std::move(AEscolheu)](int AIndice, bool AMarcado) {
                         EscolherParadaDoTab();
                         if (AMarcado) escolheu(AIndice);
                     });
}

std::vector<QRadioButton*> TGrupoOpcoesQt::CompletarItens(const std::vector<std::u16string>& AItens) {
    std::vector<QRadioButton*> novos;
    for (std::size_t i = FBotoes.size(); i < AItens.size(); ++i) {
        auto* botao = new QRadioButton(this);
        FGrupo.addButton(botao, static_cast<int>(i));
        botao->show();
        FBotoes.push_back(botao);
        FTextos.push_back(ParaQt(AItens[i]));
        novos.push_back(botao);
    }
    if (!novos.empty()) Arrumar();
    EscolherParadaDoTab();
    return novos;
}

void TGrupoOpcoesQt::Escolher(int AIndice) {
    if (FGrupo.checkedId() == AIndice) return;
    if (QAbstractButton* botao = FGrupo.button(AIndice)) {
        botao->setChecked(true);
    } else if (QAbstractButton* marcado = FGrupo.checkedButton()) {
        FGrupo.setExclusive(false);  // an exclusive group never lets its last choice go
        marcado->setChecked(false);
        FGrupo.setExclusive(true);
    }
}

// Qt stops at every button of a group until one of them had the focus.
void TGrupoOpcoesQt::EscolherParadaDoTab() {
    const QRadioButton* parada = GetBotaoDeFoco();
    for (QRadioButton* botao : FBotoes) botao->setFocusPolicy(botao == parada ? Qt::StrongFocus : Qt::ClickFocus);
}

void TGrupoOpcoesQt::SetQuebraLinha(bool AQuebra) {
    if (FQuebraLinha == AQuebra) return;
    FQuebraLinha = AQuebra;
    Arrumar();
}

QRadioButton* TGrupoOpcoesQt::GetBotaoDeFoco() const {
    const int indice = FGrupo.checkedId();
    if (indice >= 0) return FBotoes[static_cast<std::size_t>(indice)];
    return FBotoes.empty() ? nullptr : FBotoes.front();
}

void TGrupoOpcoesQt::resizeEvent(QResizeEvent* AEvento) {
    QGroupBox::resizeEvent(AEvento);
    Arrumar();
}

void TGrupoOpcoesQt::Arrumar() {
    if (FBotoes.empty()) return;
    const QFontMetrics metricas = fontMetrics();
    const int topo = title().isEmpty() ? CMargem / 2 : metricas.height() + CMargem / 2;
    const int largura = width() - 2 * CMargem;
    const int altura = std::max(0, height() - topo - CMargem / 2) / static_cast<int>(FBotoes.size());
    const int linhas = FQuebraLinha ? std::max(1, altura / metricas.lineSpacing()) : 1;
    for (std::size_t i = 0; i < FBotoes.size(); ++i) {
        FBotoes[i]->setGeometry(CMargem, topo + static_cast<int>(i) * altura, largura, altura);
        const int espaco = BuscarEspacoDoTexto(*FBotoes[i]);
        const QString& texto = FTextos[i];
        QString cabe = texto;
        if (metricas.size(Qt::TextShowMnemonic, texto).width() > espaco) {
            cabe = QuebrarEmLinhas(texto, font(), espaco, linhas);
            if (cabe.isEmpty()) cabe = metricas.elidedText(texto, Qt::ElideRight, espaco, Qt::TextShowMnemonic);
        }
        FBotoes[i]->setText(cabe);
        FBotoes[i]->setAccessibleName(QString::fromStdU16String(RemoverAtalho(texto.toStdU16String())));
        FBotoes[i]->setToolTip(cabe.endsWith(QChar(0x2026)) ? texto.toHtmlEscaped() : QString());
    }
}

}  // namespace OryUtils
