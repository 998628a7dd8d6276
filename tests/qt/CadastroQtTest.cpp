// The sample window as a widget.
#include "apps/cadastro/qt/JanelaCadastro.hpp"
#include "comum/UsuarioDoCadastro.hpp"
#include "qt/Roteiro.hpp"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace OryUtils::Cadastro {
namespace {

class TUsuarioDaJanela final : public TUsuarioDoCadastro, public TUsuarioQt {
public:
    void Conduzir(TPassos APassos) override {
        FJanela = std::make_unique<TJanelaCadastro>();
        Preencher(caNome, "Comercial Modelo");  // left empty it would be the first to complain
        FJanela->show();
        FJanela->activateWindow();
        FPassos = std::move(APassos);
        FSeguinte = true;
        Seguir();
        EXPECT_TRUE(QTest::qWaitFor([&] { return FPassos.empty() && FSeguinte; }, 20'000));
        FJanela.reset();
    }
    void Exemplificar() override { FJanela->Exemplificar(); }
    void Preencher(TCampo ACampo, const char* ATexto) override { Caixa(ACampo)->setText(ATexto); }
    std::string Ler(TCampo ACampo) override { return Caixa(ACampo)->text().toStdString(); }
    std::string LerPorExtenso() override { return FJanela->GetPorExtenso()->text().toStdString(); }
    void Focar(TCampo ACampo) override { FJanela->GetCaixa(ACampo)->setFocus(); }
    bool EstahFocado(TCampo ACampo) override { return QApplication::focusWidget() == FJanela->GetCaixa(ACampo); }
    void Salvar() override { FJanela->findChildren<QPushButton*>().constFirst()->click(); }
    std::string LerAviso() override {
        QString texto;
        if (const QDialog* dialogo = BuscarDialogo())
            for (const QLabel* rotulo : dialogo->findChildren<QLabel*>()) texto += rotulo->text();
        return texto.toStdString();
    }
    TUsuario& Teclado() override { return *this; }

private:
    QLineEdit* Caixa(TCampo ACampo) const { return static_cast<QLineEdit*>(FJanela->GetCaixa(ACampo)); }
    /// The next step comes when the one before has ended, or while it waits for a dialog.
    void Seguir() {
        QTimer::singleShot(1, FJanela.get(), [this] {
            if (FPassos.empty()) return;
            const QWidget* dialogo = BuscarDialogo();
            const QWidget* frente = dialogo ? dialogo : FJanela.get();
            if (frente->isActiveWindow() && (FSeguinte || dialogo != FDialogo)) {
                const auto passo = std::move(FPassos.front());
                FPassos.pop_front();
                FSeguinte = false;
                FDialogo = dialogo;
                Seguir();
                passo();
                FSeguinte = true;
            } else {
                Seguir();
            }
        });
    }

    std::unique_ptr<TJanelaCadastro> FJanela;
    TPassos FPassos;
    const QWidget* FDialogo = nullptr;  // in front when the last step began
    bool FSeguinte = true;              // that one has ended
};

}  // namespace

std::unique_ptr<TUsuarioDoCadastro> CriarUsuarioDoCadastro() { return std::make_unique<TUsuarioDaJanela>(); }

}  // namespace OryUtils::Cadastro
