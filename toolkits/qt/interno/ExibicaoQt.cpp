#include "toolkits/qt/interno/ExibicaoQt.hpp"

#include "toolkits/qt/interno/GuardaQt.hpp"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWindow>

namespace OryUtils {
namespace {

constexpr int CEsperaDaTela = 300;  // milliseconds
constexpr int CPasso = 10;

}  // namespace

TExibicaoQt::TExibicaoQt(TFormulario& AFormulario) : FJanela(AFormulario) {
    TGuardaQt guarda([] {});
    FJanela.Abrir();
    QElapsedTimer relogio;
    relogio.start();
    while (!FJanela.windowHandle()->isExposed() && relogio.elapsed() < CEsperaDaTela)
        QCoreApplication::processEvents(QEventLoop::AllEvents, CPasso);
    guarda.Relancar();
}

TExibicaoQt::~TExibicaoQt() { FJanela.Recolher(); }

}  // namespace OryUtils
