#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/forms/Toolkit.hpp"

#include <functional>
#include <memory>

namespace OryUtils {

/// A screen: the part that task bars leave free, and its pixels per inch.
struct TTelaWin32 {
    TRetangulo AreaDeTrabalho;
    int PixelsPorPolegada = 96;
};
/// Tells the screen where a window (HWND) is; the main one for null.
using TBuscarTelaWin32 = std::function<TTelaWin32(void* AJanela)>;

/// Forms as windows of class "TOryFormulario" with the system's own controls, font and icons. Sizes of the model are
/// pixels of the screen.
///
/// While a form runs, the other windows of the thread take no input. An exception of an event handler ends the
/// form and is raised by its ExecutarModal; EAbort ends only the handler. An exception of a timer's action goes to the
/// innermost loop of this toolkit, or is shown to the user when only the host's own loop is running.
class ORY_API TToolkitWin32 final : public TToolkit {
public:
    /// AThread  the system's number of the thread that shows forms; 0 is the calling thread
    /// ATelas   tells of screens instead of the system; empty is the system
    explicit TToolkitWin32(unsigned long AThread = 0, TBuscarTelaWin32 ATelas = {});
    ~TToolkitWin32() override;

    /// Whether this process can show windows: false in a service or a batch without a desktop.
    static bool HaAreaDeTrabalho();
    /// The thread that loaded the library: the program's main thread, as a rule.
    static unsigned long GetThreadDeCarga() noexcept;

    const char* GetNome() const noexcept override { return "win32"; }
    bool EhThreadDaInterface() const override;
    int ExecutarModal(TFormulario& AFormulario) override;
    void ProcessarMensagens() override;
    std::shared_ptr<void> Exibir(TFormulario& AFormulario) override;
    std::shared_ptr<void> DesabilitarJanelas() override;
    TAtendimento SetJanelaDona(std::uintptr_t AJanela) override;
    TAtendimento SetNaFrente(bool ANaFrente) override;
    TTamanho MedirTexto(std::u16string_view ATexto, int ALarguraMaxima) const override;
    TTamanho MedirControle(TTipoControle ATipo, std::u16string_view ATexto, int ALarguraMaxima) const override;
    int GetTamanhoFonte() const override;
    int GetPixelsPorPolegada() const override;
    TRetangulo GetAreaDeTrabalho() const override;
    std::uintptr_t LigarTemporizador(int AMilissegundos, std::function<void()> AAcao) override;
    void DesligarTemporizador(std::uintptr_t ATemporizador) override;
    /// The system's own pickers, in its language. Raises Exception when more files were chosen than can be told.
    std::vector<std::u16string> EscolherCaminhos(const TPedidoDeCaminho& APedido) override;
    void SetCursor(TCursorTela ACursor) override;
    bool EstahPressionada(std::uint16_t ATecla) const override;
    void Bipar() override;
    /// Copies nothing when another program keeps the clipboard open.
    void CopiarParaAreaDeTransferencia(std::u16string_view ATexto) override;

private:
    struct TPartes;
    unsigned long FThread;
    std::unique_ptr<TPartes> FPartes;
};

}  // namespace OryUtils
