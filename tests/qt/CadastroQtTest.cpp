#include "oryutils/runtime/Formatos.hpp"

#include "apps/cadastro/qt/JanelaCadastro.hpp"
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
        ControladorFormatos().GetFormats();
        FJanela = std::make_unique<TJanelaCadastro>();
        Caixa(caNome)->setText("Comercial Modelo");  // left empty it would be the first to complain
        FJanela->show();
        FJanela->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(FJanela.get()));
    }
    QLineEdit* Caixa(TCampo ACampo) const { return static_cast<QLineEdit*>(FJanela->GetCaixa(ACampo)); }
    void Digitar(TCampo ACampo, const char* ATexto) {
        Caixa(ACampo)->setFocus();
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

struct TCaso {
    TCampo Campo;
    const char* Digitado;
    const char* NaCaixa;
    const char* Depois;  // left
    const char* Aviso;   // null: it is good
};
constexpr TCaso CDigitados[] = {
    {caNome, "", "", "", "Informe o nome do cliente."},
    {caDocumento, "11222333000181", "11.222.333/0001-81", "11.222.333/0001-81", nullptr},
    {caDocumento, "12abc34501de35", "12.ABC.345/01DE-35", "12.ABC.345/01DE-35", nullptr},
    {caDocumento, "11222333000182", "11.222.333/0001-82", "11.222.333/0001-82", "CNPJ inválido. Verifique."},
    {caCEP, "01310x100", "01310-100", "01310-100", nullptr},
    {caCEP, "0131010", "01310-10 ", "01310-10 ", "CEP inválido: são oito dígitos."},
    {caFone, "11987654321", "(119)87654-321 ", "( 11)98765-4321", nullptr},
    {caFone, "98765432", "(987)65432-    ", "(   ) 9876-5432", "Telefone inválido: informe o DDD e o número."},
    {caMunicipio, "3550309", "3550309", "3550309", "Código do município inválido. Verifique."},
    {caValor, "1234,5x6", "1234,56", "1.234,56", nullptr},
    {caNascimento, "31121999", "31/12/1999", "31/12/1999", nullptr},
    {caNascimento, "3002", "30/02/____", "30/02/____",
     "Data de nascimento inválida: use dia/mês/ano, como 31/12/1999."},
};

TEST_F(CadastroQt, AsCaixasSeguemAsMascarasESairConfere) {
    for (const TCaso& c : CDigitados) {
        FAvisos.Textos.clear();
        Caixa(c.Campo)->setText("");
        Digitar(c.Campo, c.Digitado);
        EXPECT_EQ(Caixa(c.Campo)->text(), c.NaCaixa);
        if (c.Campo == caValor) {
            EXPECT_EQ(FJanela->GetPorExtenso()->text(),
                      "UM MIL E DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA E SEIS CENTAVOS");
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

TEST_F(CadastroQt, OTipoDoDocumentoTrocaAMascara) {
    Digitar(caDocumento, "529982");
    auto* tipo = static_cast<QComboBox*>(FJanela->GetCaixa(caTipoDocumento));
    tipo->setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(BuscarDialogo(), nullptr) << "the kind may be chosen after the number";
    QTest::keyClick(tipo, Qt::Key_Down);
    EXPECT_EQ(Caixa(caDocumento)->text(), "") << "a number of the other kind";
    Digitar(caDocumento, "52998224726999");
    EXPECT_EQ(Caixa(caDocumento)->text(), "529.982.247-26");
    FAvisos.Esperar();
    Sair(caDocumento);
    EXPECT_EQ(FAvisos.Textos, QStringList{"CPF inválido. Verifique."});
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
