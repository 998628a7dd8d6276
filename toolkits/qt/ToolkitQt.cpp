#include "toolkits/qt/ToolkitQt.hpp"

#include "oryutils/forms/interno/FabricaQt.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "toolkits/qt/interno/AplicacaoQt.hpp"
#include "toolkits/qt/interno/DonaQt.hpp"
#include "toolkits/qt/interno/EncaixeQt.hpp"
#include "toolkits/qt/interno/ExibicaoQt.hpp"
#include "toolkits/qt/interno/GuardaQt.hpp"
#include "toolkits/qt/interno/JanelaQt.hpp"
#include "toolkits/qt/interno/SeletorQt.hpp"
#include "toolkits/qt/interno/TextoQt.hpp"

#include <QClipboard>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <cmath>
#include <type_traits>
#include <utility>

namespace OryUtils {
namespace {

static_assert(std::is_same_v<TFabricaQt, decltype(OryUtilsToolkitQt)>);

// Every operation needs the application and belongs to its thread.
QApplication& Exigir() {
    if (!EhThreadDaAplicacao())
        throw Exception(u"Formulários só podem ser mostrados pela thread da interface do usuário.");
    return ExigirAplicacao();
}

}  // namespace

TToolkitQt::~TToolkitQt() { SetCursor(ctNormal); }

void TToolkitQt::TFimDoTemporizador::operator()(QTimer* ATemporizador) const noexcept {
    // A timer may be switched off by its own action, and after the application it needs nothing more.
    ATemporizador->stop();
    if (QCoreApplication::instance())
        ATemporizador->deleteLater();
    else
        delete ATemporizador;
}

bool TToolkitQt::EhThreadDaInterface() const { return EhThreadDaAplicacao(); }

int TToolkitQt::ExecutarModal(TFormulario& AFormulario) {
    Exigir();
    TJanelaQt* mostrada = nullptr;
    TGuardaQt guarda([&] {
        if (mostrada) mostrada->Acordar();
    });
    {
        TJanelaQt janela(AFormulario);
        mostrada = &janela;
        janela.Executar(guarda);
        mostrada = nullptr;
    }
    guarda.Relancar();
    return AFormulario.GetModalResult();
}

std::shared_ptr<void> TToolkitQt::Exibir(TFormulario& AFormulario) {
    Exigir();
    return std::make_shared<TExibicaoQt>(AFormulario);
}

void TToolkitQt::ProcessarMensagens() {
    if (!QCoreApplication::instance() || !EhThreadDaAplicacao()) return;
    TGuardaQt guarda([] {});
    QCoreApplication::processEvents();
    guarda.Relancar();
}

TTamanho TToolkitQt::MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const {
    Exigir();
    if (ATexto.empty()) return {};
    const QString texto = ParaQt(ATexto);
    const int quebra = Qt::AlignLeft | Qt::AlignTop | (ALarguraMaxima > 0 ? Qt::TextWordWrap : 0);
    const QRectF espaco(0, 0, ALarguraMaxima > 0 ? ALarguraMaxima : QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QRectF medida = QFontMetricsF(QApplication::font()).boundingRect(espaco, quebra, texto);
    // Letters have fractions of a pixel: in a label of the width cut to whole ones the last word would wrap.
    TTamanho tamanho{static_cast<int>(std::ceil(medida.width())) + 1, static_cast<int>(std::ceil(medida.height()))};
    if (ALarguraMaxima <= 0) return tamanho;
    // Blanks at the end of a line count for the wrapping but not for the width: a label that narrow may wrap again.
    const auto medirAltura = [&](int ALargura) {
        const QRect rotulo(0, 0, ALargura, QWIDGETSIZE_MAX);
        return QFontMetrics(QApplication::font()).boundingRect(rotulo, quebra, texto).height();
    };
    if (medirAltura(tamanho.Largura) > tamanho.Altura) tamanho.Largura = std::max(tamanho.Largura, ALarguraMaxima);
    tamanho.Altura = std::max(tamanho.Altura, medirAltura(tamanho.Largura));
    return tamanho;
}

TTamanho TToolkitQt::MedirControle(TTipoControle ATipo, std::u16string_view ATexto, int ALarguraMaxima) const {
    Exigir();
    const QSize tamanho = MedirControleQt(ATipo, ParaQt(ATexto), ALarguraMaxima);
    if (!tamanho.isValid()) return MedirControlePadrao(*this, ATipo, ATexto, ALarguraMaxima);
    return {tamanho.width(), tamanho.height()};
}

int TToolkitQt::GetTamanhoFonte() const {
    Exigir();
    return QFontInfo(QApplication::font()).pointSize();
}

int TToolkitQt::GetPixelsPorPolegada() const {
    Exigir();
    const QScreen* tela = BuscarTelaQt();
    return tela ? qRound(tela->logicalDotsPerInch()) : 96;
}

TRetangulo TToolkitQt::GetAreaDeTrabalho() const {
    Exigir();
    const QScreen* tela = BuscarTelaQt();
    if (!tela) return {0, 0, 1024, 768};
    const QRect area = tela->availableGeometry();
    return {area.x(), area.y(), area.width(), area.height()};
}

std::uintptr_t TToolkitQt::LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) {
    Exigir();
    std::unique_ptr<QTimer, TFimDoTemporizador> temporizador(new QTimer);
    // The action is copied for each tick: it may switch its own timer off, which frees the original.
    QObject::connect(temporizador.get(), &QTimer::timeout, temporizador.get(), [acao = std::move(AAcao)] {
        const auto copia = acao;
        TGuardaQt::Executar(copia);
    });
    temporizador->start(std::max(1, AMilissegundos));
    FTemporizadores.emplace(++FUltimoTemporizador, std::move(temporizador));
    return FUltimoTemporizador;
}

void TToolkitQt::DesligarTemporizador(std::uintptr_t ATemporizador) { FTemporizadores.erase(ATemporizador); }

std::vector<std::u16string> TToolkitQt::EscolherCaminhos(const TPedidoDeCaminho& APedido) {
    Exigir();
    return EscolherCaminhosQt(APedido);
}

void TToolkitQt::SetCursor(TCursorTela ACursor) {
    const bool ampulheta = ACursor == ctAmpulheta;
    if (FAmpulheta == ampulheta) return;
    if (ampulheta) {
        Exigir();
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (QCoreApplication::instance()) {
        QGuiApplication::restoreOverrideCursor();
    }
    FAmpulheta = ampulheta;
}

std::shared_ptr<void> TToolkitQt::DesabilitarJanelas() {
    if (!QCoreApplication::instance() || !EhThreadDaAplicacao()) return nullptr;
    const auto reabilitar = [](QList<QPointer<QWidget>>* AJanelas) {
        for (const QPointer<QWidget>& janela : *AJanelas)
            if (janela) janela->setEnabled(true);
        delete AJanelas;
    };
    const std::shared_ptr<QList<QPointer<QWidget>>> janelas(new QList<QPointer<QWidget>>, reabilitar);
    for (QWidget* janela : QApplication::topLevelWidgets()) {
        if (!janela->isVisible() || !janela->isEnabled()) continue;
        janela->setEnabled(false);
        janelas->append(janela);
    }
    return janelas;
}

TAtendimento TToolkitQt::SetJanelaDona(std::uintptr_t AJanela) {
    Exigir();
    return DefinirDonaQt(AJanela);
}

TAtendimento TToolkitQt::SetNaFrente(bool ANaFrente) {
    Exigir();
    return DefinirNaFrenteQt(ANaFrente);
}

bool TToolkitQt::EstahPressionada(std::uint16_t ATecla) const {
    Exigir();
    const Qt::KeyboardModifiers teclas = QGuiApplication::queryKeyboardModifiers();
    const Qt::MouseButtons botoes = QGuiApplication::mouseButtons();
    switch (ATecla) {
        case 1:
            return botoes.testFlag(Qt::LeftButton);
        case 2:
            return botoes.testFlag(Qt::RightButton);
        case 4:
            return botoes.testFlag(Qt::MiddleButton);
        case 16:
            return teclas.testFlag(Qt::ShiftModifier);
        case 17:
            return teclas.testFlag(Qt::ControlModifier);
        case 18:
            return teclas.testFlag(Qt::AltModifier);
        case 91:
            return teclas.testFlag(Qt::MetaModifier);
        default:
            return false;
    }
}

void TToolkitQt::Bipar() {
    Exigir();
    QApplication::beep();
}

void TToolkitQt::CopiarParaAreaDeTransferencia(std::u16string_view ATexto) {
    Exigir();
    QGuiApplication::clipboard()->setText(ParaQt(ATexto));
}

namespace {

// Never destroyed: destructors of globals, which run last, may still show dialogs.
TToolkitQt& BuscarToolkitQt() {
    static auto* toolkit = new TToolkitQt;
    return *toolkit;
}

}  // namespace

void InstalarToolkitQt() { InstalarToolkit(&BuscarToolkitQt()); }

}  // namespace OryUtils

OryUtils::TToolkit* OryUtilsToolkitQt(int AVersao) noexcept {
    if (AVersao != OryUtils::CVersaoDoModelo || !OryUtils::PodeCriarAplicacao()) return nullptr;
    return &OryUtils::BuscarToolkitQt();
}
