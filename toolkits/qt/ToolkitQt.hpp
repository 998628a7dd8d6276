#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include "toolkits/qt/OryQtExport.hpp"

#include <QTimer>

#include <map>
#include <memory>

namespace OryUtils {

/// Forms as Qt 6 Widgets.
///
/// Works beside the host's QApplication, whose thread then owns the user interface. Where there is none, the first
/// operation that needs one creates it, and the thread that first asked owns the interface; that QApplication is never
/// destroyed, the system takes it back with the process. A host with only a QCoreApplication cannot show forms: every
/// operation raises Exception.
///
/// A pixel of the form model is a device-independent pixel of Qt: with high-DPI scaling a form grows with the screen,
/// and measures, screen size and pixels per inch are told in the same unit.
///
/// What handlers raise never crosses Qt: EAbort is swallowed, anything else ends the innermost modal run and leaves
/// ExecutarModal (or ProcessarMensagens, when that ran the handler). A timer that raises while the host's own loop runs
/// has no caller of ours: its message goes to Qt's warning log.
///
/// Operations of other threads raise Exception; ProcessarMensagens there does nothing.
class ORY_QT_API TToolkitQt final : public TToolkit {
public:
    TToolkitQt() = default;
    ~TToolkitQt() override;
    TToolkitQt(const TToolkitQt&) = delete;
    TToolkitQt& operator=(const TToolkitQt&) = delete;

    const char* GetNome() const noexcept override { return "qt"; }
    bool EhThreadDaInterface() const override;
    int ExecutarModal(TFormulario& AFormulario) override;
    void ProcessarMensagens() override;
    std::shared_ptr<void> Exibir(TFormulario& AFormulario) override;
    std::shared_ptr<void> DesabilitarJanelas() override;
    /// On X11.
    TAtendimento SetJanelaDona(std::uintptr_t AJanela) override;
    /// Not on Wayland.
    TAtendimento SetNaFrente(bool ANaFrente) override;
    TTamanho MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const override;
    TTamanho MedirControle(TTipoControle ATipo, std::u16string_view ATexto, int ALarguraMaxima) const override;
    int GetTamanhoFonte() const override;
    int GetPixelsPorPolegada() const override;
    TRetangulo GetAreaDeTrabalho() const override;
    std::uintptr_t LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) override;
    void DesligarTemporizador(std::uintptr_t ATemporizador) override;
    std::vector<std::u16string> EscolherCaminhos(const TPedidoDeCaminho& APedido) override;
    void SetCursor(TCursorTela ACursor) override;
    /// Qt tells of Shift (16), Ctrl (17), Alt (18), the system key (91) and the mouse buttons (1, 2, 4); of any other
    /// key the answer is false.
    bool EstahPressionada(std::uint16_t ATecla) const override;
    void Bipar() override;
    void CopiarParaAreaDeTransferencia(std::u16string_view ATexto) override;

private:
    struct TFimDoTemporizador {
        void operator()(QTimer* ATemporizador) const noexcept;
    };

    std::map<std::uintptr_t, std::unique_ptr<QTimer, TFimDoTemporizador>> FTemporizadores;
    std::uintptr_t FUltimoTemporizador = 0;
    bool FAmpulheta = false;
};

/// Installs the Qt toolkit for all dialogs of the library; a host calls it once, before or after it makes its
/// QApplication. Calling it again does nothing more.
/// Example:
///   QApplication aplicacao(argc, argv);
///   OryUtils::InstalarToolkitQt();
ORY_QT_API void InstalarToolkitQt();

}  // namespace OryUtils

/// What the library calls when it loads this one at run time: the toolkit; null when AVersao is not the version of the
/// form model that this library was built with, or when Qt could not start in this process.
extern "C" ORY_QT_API OryUtils::TToolkit* OryUtilsToolkitQt(int AVersao) noexcept;
