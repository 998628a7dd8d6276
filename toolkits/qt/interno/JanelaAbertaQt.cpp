// From showing a form to hiding it.
#include "toolkits/qt/interno/GuardaQt.hpp"
#include "toolkits/qt/interno/JanelaQt.hpp"

#include <QApplication>
#include <QScreen>
#include <QWindow>

namespace OryUtils {
namespace {

// Tells the end of a loop by its window from the end of the application.
constexpr int CAcordado = 0x0AC0;

}  // namespace

void TJanelaQt::Abrir() {
    // Above the host's window, without belonging to it: the host may free that window meanwhile.
    FAtivaAntes = QApplication::activeWindow();
    winId();
    if (FAtivaAntes && FAtivaAntes->window()->windowHandle())
        windowHandle()->setTransientParent(FAtivaAntes->window()->windowHandle());
    else if (FDona = BuscarDonaQt(); FDona)
        windowHandle()->setTransientParent(FDona->Janela.get());
    FPixelsPorPolegada = qRound(screen()->logicalDotsPerInch());
    FAreaDaTela = screen()->availableSize();
    // Later: Qt may be making the window anew for its other screen.
    connect(windowHandle(), &QWindow::screenChanged, this, &TJanelaQt::ConferirTela, Qt::QueuedConnection);
    FocarInicial();
    show();
    activateWindow();
    Avisar([this] { FFormulario.OnShow(&FFormulario); });
}

void TJanelaQt::Recolher() {
    hide();
    if (FAtivaAntes && FAtivaAntes->isVisible()) FAtivaAntes->activateWindow();
}

void TJanelaQt::Executar(TGuardaQt& AGuarda) {
    Abrir();
    while (FFormulario.GetModalResult() == mrNone && !AGuarda.PossuiErro()) {
        QEventLoop laco;
        FLaco = &laco;
        const bool acordado = laco.exec(QEventLoop::DialogExec) == CAcordado;
        FLaco = nullptr;
        if (!acordado) FFormulario.Fechar();  // the application quits
    }
    Recolher();
}

void TJanelaQt::Acordar() {
    if (FLaco) FLaco->exit(CAcordado);
}

}  // namespace OryUtils
