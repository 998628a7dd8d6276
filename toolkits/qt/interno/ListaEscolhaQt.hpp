#pragma once

#include "oryutils/forms/Controles.hpp"

#include <QListWidget>

#include <functional>
#include <vector>

namespace OryUtils {

/// The native side of a TListaEscolha.
class TListaEscolhaQt final : public QListWidget {
public:
    /// AEscolheu is called when the user chose, never for what Mostrar does.
    TListaEscolhaQt(QWidget* APai, bool AVarios, std::function<void(std::vector<int>)> AEscolheu);

    void MostrarItens(const TListaEscolha& AModelo);
    void MostrarEscolhidos(const TListaEscolha& AModelo);

private:
    std::vector<int> LerEscolhidos() const;
};

}  // namespace OryUtils
