#pragma once

#include "oryutils/forms/Formulario.hpp"

#include "toolkits/qt/EdicaoMascaradaQt.hpp"
#include "toolkits/qt/interno/DonaQt.hpp"

#include <QAbstractButton>
#include <QDialog>
#include <QEventLoop>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace OryUtils {

class TGuardaQt;

/// The native window of a shown form.
class TJanelaQt final : public QDialog, public TJanela {
public:
    explicit TJanelaQt(TFormulario& AFormulario);
    ~TJanelaQt() override;

    /// Shows the window and runs it until the form has a modal result, AGuarda an exception, or the application quits.
    void Executar(TGuardaQt& AGuarda);
    // For a form without a loop of its own; Executar does both.
    void Abrir();
    void Recolher();
    /// Leaves the innermost loop of this window.
    void Acordar();

    const TFormulario& GetFormulario() const noexcept { return FFormulario; }

    void Mudou(TControleFormulario& AControle, TMudanca AMudanca) override;
    void MudouFormulario(TMudanca AMudanca) override;
    void ResultadoMudou() override;
    /// Who accepts or rejects the dialog from outside closes the form; only the form tells the result.
    void done(int AResultado) override;

protected:
    void closeEvent(QCloseEvent* AEvento) override;
    void resizeEvent(QResizeEvent* AEvento) override;
    void keyPressEvent(QKeyEvent* AEvento) override;
    bool eventFilter(QObject* AObjeto, QEvent* AEvento) override;

private:
    QWidget* Buscar(const TControleFormulario& AControle) const;
    void Realizar(TControleFormulario& AControle);
    QWidget* Criar(TControleFormulario& AControle);
    QWidget* CriarCaixa(TCaixaEdicao& AModelo);
    void Vigiar(QWidget& AWidget, TControleFormulario& AControle);
    void Aplicar(TControleFormulario& AControle, QWidget& AWidget);
    void AplicarTexto(const TControleFormulario& AControle, QWidget& AWidget);
    void AplicarTamanho();
    void ConferirTela();
    void OrdenarTabulacao();
    void Focar(const TControleFormulario& AControle);
    void FocarInicial();
    void GravarMemorandos();
    /// Runs a handler of the form with the model up to date.
    void Avisar(const std::function<void()>& AAcao);
    bool AvisarSaidas();
    bool TratarTeclaQt(const QKeyEvent& AEvento);
    bool Navegar(const QKeyEvent& AEvento) const;
    QList<QAbstractButton*> BuscarBotoes() const;
    QList<QAbstractButton*> BuscarVizinhos(const TControleFormulario& AControle) const;
    void AtualizarPadrao();

    TFormulario& FFormulario;
    std::unordered_map<const TControleFormulario*, QWidget*> FWidgets;
    std::unordered_map<const QObject*, TControleFormulario*> FControles;
    // A key that a control leaves alone is offered to its parents as the same event: this tells it from a new one.
    const QEvent* FTeclaTratada = nullptr;
    QEventLoop* FLaco = nullptr;
    QPointer<QWidget> FAtivaAntes;
    std::optional<TDonaQt> FDona;
    int FPixelsPorPolegada = 96;
    QSize FAreaDaTela;
    std::vector<TCaixaEdicao*> FSaidas;
    bool FAvisandoSaidas = false;
    std::vector<std::unique_ptr<TEdicaoMascaradaQt>> FEditores;  // of the boxes that are bound to fields
};

}  // namespace OryUtils
