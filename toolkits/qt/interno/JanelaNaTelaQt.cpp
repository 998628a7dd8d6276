// Where the window of a form stands on its screen.
#include "toolkits/qt/interno/AplicacaoQt.hpp"
#include "toolkits/qt/interno/JanelaQt.hpp"

#include <QScreen>

#include <algorithm>
#include <utility>

namespace OryUtils {

void TJanelaQt::AplicarTamanho() {
    const QSize cliente(FFormulario.GetLarguraCliente(), FFormulario.GetAlturaCliente());
    if (FFormulario.EstiloBorda == ebDialogo)
        setFixedSize(cliente);
    else
        resize(cliente);
    if (FFormulario.Posicao == pfDesenhada) {
        move(FFormulario.GetPosicao().Left, FFormulario.GetPosicao().Top);
        return;
    }
    const QScreen* tela = isVisible() ? screen() : BuscarTelaQt();
    if (!tela) return;
    setScreen(const_cast<QScreen*>(tela));
    const QRect area = tela->availableGeometry();
    const QPoint meio = area.center() - QPoint(cliente.width() / 2, cliente.height() / 2);
    move(std::max(meio.x(), area.left()), std::max(meio.y(), area.top()));
}

// The window has come to another screen, or its screen has changed.
void TJanelaQt::ConferirTela() {
    const QScreen* tela = screen();
    const int pixels = qRound(tela->logicalDotsPerInch());
    const QSize area = tela->availableSize();
    const int antes = std::exchange(FPixelsPorPolegada, pixels);
    if (std::exchange(FAreaDaTela, area) == area && antes == pixels) return;
    Avisar([&] { FFormulario.AoMudarTela(antes, pixels); });
}

}  // namespace OryUtils
