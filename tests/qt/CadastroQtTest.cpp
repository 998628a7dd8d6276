#include "oryutils/runtime/Formatos.hpp"

#include "apps/cadastro/qt/JanelaCadastro.hpp"
#include "comum/CasosDoCadastro.hpp"
#include "qt/Roteiro.hpp"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

namespace OryUtils::Cadastro {
namespace {

// What the next dialog says, closed by its button.
struct TAvisos {
    QStringList Textos;
    void Esperar() {
        QuandoMostrar([this] {
            QString texto;
            for (const QLabel* rotulo : BuscarDialogo()->findChildren<QLabel*>()) texto += rotulo->text();
            Textos += texto;
            QTest::keyClick(BuscarDialogo(), Qt::Key_Return);
        });
    }
};

class CadastroQt : public TTesteQt {
protected:
    void SetUp() override {
        TTesteQt::SetUp();
        FJanela = std::make_unique<TJanelaCadastro>();
        Caixa(caNome)->setText("Comercial Modelo");  // left empty it would be the first to complain
        FJanela->show();
        FJanela->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(FJanela.get()));
    }
    QLineEdit* Caixa(TCampo ACampo) const { return static_cast<QLineEdit*>(FJanela->GetCaixa(ACampo)); }
    void Digitar(TCampo ACampo, const char* ATexto) {
        Caixa(ACampo)->setFocus();
        // A warning that has just closed gives the window its focus back.
        EXPECT_TRUE(QTest::qWaitFor([&] { return Caixa(ACampo)->hasFocus(); }));
        QTest::keyClicks(Caixa(ACampo), ATexto);
    }
    /// Leaves ACampo by Tab, and waits until that has been looked at.
    void Sair(TCampo ACampo) {
        QTest::keyClick(Caixa(ACampo), Qt::Key_Tab);
        QCoreApplication::processEvents();
    }
    QPushButton* Salvar() const { return FJanela->findChildren<QPushButton*>().constFirst(); }

    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
    TAvisos FAvisos;
    std::unique_ptr<TJanelaCadastro> FJanela;
};

TEST_F(CadastroQt, AsCaixasSeguemAsMascarasESairConfere) {
    for (const TCasoDeCampo& c : CCasosDeCampo) {
        FAvisos.Textos.clear();
        Caixa(c.Campo)->setText("");
        Digitar(c.Campo, c.Digitado);
        EXPECT_EQ(Caixa(c.Campo)->text(), c.NaCaixa);
        if (c.Campo == caValor && !c.Aviso) {
            EXPECT_EQ(FJanela->GetPorExtenso()->text(), CValorPorExtenso);
        }
        if (c.Aviso) FAvisos.Esperar();
        Sair(c.Campo);
        EXPECT_EQ(FAvisos.Textos, c.Aviso ? QStringList{c.Aviso} : QStringList{}) << c.Digitado;
        if (c.Aviso) {
            EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == Caixa(c.Campo); }));
            QCoreApplication::processEvents();
            EXPECT_EQ(BuscarDialogo(), nullptr) << "one warning, not a chain of them";
        }
        EXPECT_EQ(Caixa(c.Campo)->text(), c.Depois);
        // Out of the way without a warning, for the next row.
        Caixa(c.Campo)->setText(c.Campo == caNome ? "Comercial Modelo" : "");
    }
}

TEST_F(CadastroQt, SalvarConfereTudo) {
    FJanela->Exemplificar();
    Caixa(caNome)->setText(" ");
    FAvisos.Esperar();
    Salvar()->click();
    EXPECT_EQ(FAvisos.Textos.last(), "Informe o nome do cliente.");
    EXPECT_EQ(FJanela->focusWidget(), Caixa(caNome));
    Caixa(caNome)->setText("Comercial Modelo");
    Digitar(caDocumento, "11222333000182");
    FAvisos.Esperar();
    Salvar()->click();
    EXPECT_EQ(FAvisos.Textos.last(), "CNPJ inválido. Verifique.") << "a box counts before it is left";
    Caixa(caDocumento)->selectAll();
    Digitar(caDocumento, "11222333000181");
    FAvisos.Esperar();
    Salvar()->click();
    EXPECT_EQ(FAvisos.Textos.last(), "Cliente conferido: todos os campos são válidos.");
}

TEST_F(CadastroQt, AltELetraVaiAoCampoDaLetra) {
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        const std::size_t marca = CCampos[i].Caption.find(u'&');
        if (marca == std::u16string_view::npos || i == caIE) continue;  // the state's list is left without a choice
        Caixa(caCEP)->setFocus();
        QTest::keyClick(FJanela.get(), static_cast<char>(CCampos[i].Caption[marca + 1]), Qt::AltModifier);
        EXPECT_EQ(QApplication::focusWidget(), FJanela->GetCaixa(static_cast<TCampo>(i)));
        if (i == caUF) static_cast<QComboBox*>(FJanela->GetCaixa(caUF))->setCurrentText("SP");
    }
}

}  // namespace
}  // namespace OryUtils::Cadastro
