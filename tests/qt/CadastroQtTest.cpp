#include "oryutils/runtime/Formatos.hpp"

#include "apps/cadastro/qt/JanelaCadastro.hpp"
#include "qt/Roteiro.hpp"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

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

TEST_F(TTesteQt, CadastroConfereAoSairEAoSalvar) {
    TJanelaCadastro janela;
    janela.show();
    janela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    const auto digitar = [&](TCampo ACampo, const char* ATexto) {
        static_cast<QLineEdit*>(janela.GetCampo(ACampo))->setText(ATexto);
    };
    TAvisos avisos;

    const TFormatosTemporarios brasileiros(BuscarFormatosBrasileiros());
    digitar(caValor, "1.234,56");
    EXPECT_EQ(janela.GetPorExtenso()->text(),
              QString::fromUtf8("UM MIL E DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA E SEIS CENTAVOS"));
    digitar(caValor, "-1");
    EXPECT_EQ(janela.GetPorExtenso()->text(), "") << "a debt has no words";

    digitar(caNome, "Comercial Modelo");
    digitar(caDocumento, "11.222.333/0001-82");
    janela.GetCampo(caDocumento)->setFocus();
    avisos.Esperar();
    QTest::keyClick(janela.GetCampo(caDocumento), Qt::Key_Tab);
    ASSERT_TRUE(QTest::qWaitFor([&] { return avisos.Textos.size() == 1; }));
    EXPECT_EQ(avisos.Textos[0], "CNPJ inválido. Verifique.");
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::focusWidget() == janela.GetCampo(caDocumento); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(BuscarDialogo(), nullptr) << "one warning, not a chain of them";

    digitar(caValor, "1234,5");
    digitar(caDocumento, "11.222.333/0001-81");
    digitar(caNome, " ");
    auto* salvar = janela.findChildren<QPushButton*>().constFirst();
    avisos.Esperar();
    salvar->click();
    EXPECT_EQ(avisos.Textos.last(), "Informe o nome do cliente.");
    EXPECT_EQ(janela.focusWidget(), janela.GetCampo(caNome));

    digitar(caNome, "Comercial Modelo");
    static_cast<QComboBox*>(janela.GetCampo(caUF))->setCurrentText("SP");
    avisos.Esperar();
    salvar->click();
    EXPECT_EQ(avisos.Textos.last(), "Cliente conferido: todos os campos são válidos.");
}

}  // namespace
}  // namespace OryUtils::Cadastro
