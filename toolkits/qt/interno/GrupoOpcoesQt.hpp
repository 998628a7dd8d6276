#pragma once

#include "oryutils/forms/Controles.hpp"

#include <QButtonGroup>
#include <QGroupBox>
#include <QRadioButton>
#include <QScrollArea>

#include <functional>
#include <vector>

namespace OryUtils {

/// Group box with a column of radio buttons, which share its height and scroll where they do not fit. A caption that
/// is too long is broken into lines when the group wraps and is shortened with "…" otherwise; then a tool tip shows
/// the whole of it.
class TGrupoOpcoesQt final : public QGroupBox {
public:
    TGrupoOpcoesQt(QWidget* APai, std::function<void(int)> AEscolheu);

    /// Adds the buttons of the items that have none yet, and returns them.
    std::vector<QRadioButton*> CompletarItens(const std::vector<std::u16string>& AItens);
    /// Chosen item; -1 for none.
    void Escolher(int AIndice);
    void SetQuebraLinha(bool AQuebra);
    const std::vector<QRadioButton*>& GetBotoes() const noexcept { return FBotoes; }
    /// What takes the focus for the group, also by Tab: the chosen button, else the first; null when it has none.
    QRadioButton* GetBotaoDeFoco() const;

protected:
    void resizeEvent(QResizeEvent* AEvento) override;
    bool eventFilter(QObject* AObjeto, QEvent* AEvento) override;

private:
    std::vector<int> MedirAlturas(int ALargura) const;
    void Arrumar();
    void EscolherParadaDoTab();

    QScrollArea FVista;
    QWidget* FConteudo;  // of the view, which owns it
    std::vector<QRadioButton*> FBotoes;
    std::vector<QString> FTextos;
    QButtonGroup FGrupo;
    bool FQuebraLinha = false;
};

}  // namespace OryUtils
