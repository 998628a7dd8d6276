#include "toolkits/qt/interno/ListaEscolhaQt.hpp"

#include "toolkits/qt/interno/TextoQt.hpp"

#include <QSignalBlocker>

#include <algorithm>

namespace OryUtils {

TListaEscolhaQt::TListaEscolhaQt(QWidget* APai, bool AVarios, std::function<void(std::vector<int>)> AEscolheu)
    : QListWidget(APai) {
    setSelectionMode(AVarios ? MultiSelection : SingleSelection);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    QObject::connect(this, &QListWidget::itemSelectionChanged, this,
                     [this, escolheu = std::move(AEscolheu)] { escolheu(LerEscolhidos()); });
}

void TListaEscolhaQt::MostrarItens(const TListaEscolha& AModelo) {
    const QSignalBlocker calado(this);
    clear();
    for (const std::u16string& item : AModelo.GetItens()) addItem(ParaQt(item));
    MostrarEscolhidos(AModelo);
}

void TListaEscolhaQt::MostrarEscolhidos(const TListaEscolha& AModelo) {
    const auto& escolhidos = AModelo.GetEscolhidos();
    if (LerEscolhidos() == escolhidos) return;
    const QSignalBlocker calado(this);
    clearSelection();
    if (!escolhidos.empty()) setCurrentRow(escolhidos.front(), QItemSelectionModel::NoUpdate);
    for (const int i : escolhidos) item(i)->setSelected(true);
    if (currentItem()) scrollToItem(currentItem());
}

std::vector<int> TListaEscolhaQt::LerEscolhidos() const {
    std::vector<int> escolhidos;
    for (const QModelIndex& indice : selectedIndexes()) escolhidos.push_back(indice.row());
    std::ranges::sort(escolhidos);
    return escolhidos;
}

}  // namespace OryUtils
