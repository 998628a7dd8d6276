#include "toolkits/qt/interno/GrupoOpcoesQt.hpp"

#include "toolkits/qt/interno/EncaixeQt.hpp"
#include "toolkits/qt/interno/TextoQt.hpp"

#include <QEvent>
#include <QScrollBar>

#include <algorithm>
#include <numeric>

namespace OryUtils {
namespace {

constexpr int CMargem = 8;

}  // namespace

TGrupoOpcoesQt::TGrupoOpcoesQt(QWidget* APai, std::function<void(int)> AEscolheu)
    : QGroupBox(APai), FVista(this), FConteudo(new QWidget), FGrupo(this) {
    FVista.setFrameShape(QFrame::NoFrame);
    FVista.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    FVista.setFocusPolicy(Qt::NoFocus);
    FVista.viewport()->setAutoFillBackground(false);
    FVista.setWidget(FConteudo);
    FConteudo->setAutoFillBackground(false);
    QObject::connect(&FGrupo, &QButtonGroup::idToggled, this,
                     [this, escolheu = std::move(AEscolheu)](int AIndice, bool AMarcado) {
                         EscolherParadaDoTab();
                         if (AMarcado) escolheu(AIndice);
                     });
}

std::vector<QRadioButton*> TGrupoOpcoesQt::CompletarItens(const std::vector<std::u16string>& AItens) {
    std::vector<QRadioButton*> novos;
    for (std::size_t i = FBotoes.size(); i < AItens.size(); ++i) {
        auto* botao = new QRadioButton(FConteudo);
        botao->installEventFilter(this);
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

// The view follows the focus, also when the arrows move it.
bool TGrupoOpcoesQt::eventFilter(QObject* AObjeto, QEvent* AEvento) {
    if (AEvento->type() == QEvent::FocusIn) FVista.ensureWidgetVisible(static_cast<QWidget*>(AObjeto), 0, 0);
    return QGroupBox::eventFilter(AObjeto, AEvento);
}

std::vector<int> TGrupoOpcoesQt::MedirAlturas(int ALargura) const {
    std::vector<int> alturas;
    for (const QString& texto : FTextos)
        alturas.push_back(MedirControleQt(tcGrupoOpcoes, texto, FQuebraLinha ? ALargura : 0).height());
    return alturas;
}

void TGrupoOpcoesQt::Arrumar() {
    if (FBotoes.empty()) return;
    const QFontMetrics metricas = fontMetrics();
    const int topo = title().isEmpty() ? CMargem / 2 : metricas.height() + CMargem / 2;
    const QRect vista(CMargem, topo, std::max(0, width() - 2 * CMargem), std::max(0, height() - topo - CMargem / 2));
    FVista.setGeometry(vista);
    int largura = vista.width();
    std::vector<int> alturas = MedirAlturas(largura);
    int soma = std::accumulate(alturas.begin(), alturas.end(), 0);
    const bool rola = soma > vista.height();
    if (rola) {
        largura = std::max(0, largura - FVista.verticalScrollBar()->sizeHint().width());
        alturas = MedirAlturas(largura);
        soma = std::accumulate(alturas.begin(), alturas.end(), 0);
    }
    FVista.setVerticalScrollBarPolicy(rola ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    FConteudo->resize(largura, std::max(soma, vista.height()));
    // Options share what is left.
    const int sobra = rola ? 0 : (vista.height() - soma) / static_cast<int>(FBotoes.size());
    int y = 0;
    for (std::size_t i = 0; i < FBotoes.size(); ++i) {
        FBotoes[i]->setGeometry(0, y, largura, alturas[i] + sobra);
        EncaixarTexto(*FBotoes[i], FTextos[i], FQuebraLinha);
        FBotoes[i]->setAccessibleName(QString::fromStdU16String(RemoverAtalho(FTextos[i].toStdU16String())));
        y += alturas[i] + sobra;
    }
}

}  // namespace OryUtils
