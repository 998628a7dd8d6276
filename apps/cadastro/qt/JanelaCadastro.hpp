#pragma once

#include "apps/cadastro/Cadastro.hpp"

#include <QLabel>
#include <QWidget>

#include <array>
#include <functional>

namespace OryUtils::Cadastro {

/// The sample window with the controls of Qt: a host of the library that knows nothing of its forms.
class TJanelaCadastro final : public QWidget {
public:
    TJanelaCadastro();

    QWidget* GetCampo(TCampo ACampo) const { return FCampos[ACampo]; }
    const QLabel* GetPorExtenso() const { return FPorExtenso; }

protected:
    bool eventFilter(QObject* AObjeto, QEvent* AEvento) override;

private:
    TValores LerValores() const;
    void AoSair(std::size_t ACampo);
    void AoSalvar();
    void Tratar(const std::function<void()>& ATratador);

    std::array<QWidget*, CQuantidadeCampos> FCampos{};
    QLabel* FPorExtenso = nullptr;
    QWidget* FFechar = nullptr;
    bool FValidando = false;
};

}  // namespace OryUtils::Cadastro
