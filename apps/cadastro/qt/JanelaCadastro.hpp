#pragma once

#include "apps/cadastro/Cadastro.hpp"
#include "toolkits/qt/ControleQt.hpp"
#include "toolkits/qt/EdicaoMascaradaQt.hpp"

#include <QLabel>
#include <QWidget>

#include <array>
#include <memory>
#include <vector>

namespace OryUtils::Cadastro {

/// The sample window with the controls of Qt: a host of the library that knows nothing of its forms.
class TJanelaCadastro final : public QWidget, public TCadastro {
public:
    TJanelaCadastro();

    QWidget* GetCaixa(TCampo ACampo) const { return FCaixas[ACampo]; }
    const QLabel* GetPorExtenso() const { return FPorExtenso; }

protected:
    bool eventFilter(QObject* AObjeto, QEvent* AEvento) override;

    TWinControl& GetControle(std::size_t ACampo) override { return FControles[ACampo]; }
    TEditorDeCampo* GetEditor(std::size_t ACampo) override { return FEdicoes[ACampo].get(); }
    std::u16string LerCaixa(std::size_t ACampo) const override;
    void EscreverCaixa(std::size_t ACampo, std::u16string_view ATexto) override;

private:
    QWidget* CriarCaixa(std::size_t ACampo);
    void AoPerderFoco(std::size_t ACampo);

    std::array<QWidget*, CQuantidadeCampos> FCaixas{};
    std::array<std::unique_ptr<TEdicaoMascaradaQt>, CQuantidadeCampos> FEdicoes;
    std::vector<TControleQt> FControles;
    QLabel* FPorExtenso = nullptr;
    QWidget* FFechar = nullptr;
};

}  // namespace OryUtils::Cadastro
