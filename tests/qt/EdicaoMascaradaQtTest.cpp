// Real line edits bound to fields: typed into, pasted into, left.
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "qt/Roteiro.hpp"
#include "toolkits/qt/ControleQt.hpp"
#include "toolkits/qt/EdicaoMascaradaQt.hpp"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

#include <memory>

namespace OryUtils {
namespace {

struct TJanela : QWidget {
    QLineEdit* Caixa = new QLineEdit;
    QLineEdit* Outra = new QLineEdit;
    TJanela() {
        auto* coluna = new QVBoxLayout(this);
        coluna->addWidget(Caixa);
        coluna->addWidget(Outra);
        show();
        activateWindow();  // a bare X server has no window manager to do it
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        Outra->setFocus();
    }
};

class EdicaoQt : public TTesteQt {
protected:
    void SetUp() override {
        TTesteQt::SetUp();
        ControladorFormatos().GetFormats();
    }
    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

struct TCaso {
    void (*Formatar)(TField&);
    TFieldType Tipo;
    const char* Digitado;
    Qt::Key Tecla;
    const char* NaCaixa;
    const char16_t* Gravado;
    const char* Exibido;
    int Cursor;
};
void FormatarData(TField& ACampo) { FormatarCampo(ACampo, u"99/99/9999;1;_"); }
const TCaso CCasos[] = {
    {FormatarCPF, ftString, "529982a24725", Qt::Key_Shift, "529.982.247-25", u"52998224725", "529.982.247-25", 14},
    {FormatarCPF, ftString, "529", Qt::Key_Left, "529.   .   -  ", u"529", "529.   .   -  ", 2},
    {FormatarCPF, ftString, "529", Qt::Key_Backspace, "52 .   .   -  ", u"52", "52 .   .   -  ", 2},
    {FormatarCPF, ftString, "529", Qt::Key_Home, "529.   .   -  ", u"529", "529.   .   -  ", 0},
    {FormatarCNPJ, ftString, "11.222.333/0001-81", Qt::Key_End, "11.222.333/0001-81", u"11222333000181",
     "11.222.333/0001-81", 18},
    {FormatarFone, ftString, "11987654321", Qt::Key_Shift, "(119)87654-321 ", u"( 11)98765-4321", "( 11)98765-4321",
     14},
    {FormatarData, ftDate, "29022024", Qt::Key_Shift, "29/02/2024", u"29/02/2024", "29/02/2024", 10},
    {FormatarCampoValor, ftFloat, "-12x34.5,", Qt::Key_Shift, "-1234,5", u"-1234,50", "-1.234,50", 7},
    {FormatarCampoInteiro, ftInteger, "1,5", Qt::Key_Shift, "15", u"15", "15", 2},
};

TEST_F(EdicaoQt, DigitarEDeixar) {
    TJanela janela;
    for (const TCaso& caso : CCasos) {
        const std::unique_ptr<TField> campo = EhCampoNumerico(caso.Tipo) ? std::make_unique<TNumericField>(caso.Tipo)
                                                                         : std::make_unique<TField>(caso.Tipo);
        caso.Formatar(*campo);
        const TEdicaoMascaradaQt edicao(janela.Caixa, *campo);
        janela.Caixa->setFocus();
        QTest::keyClicks(janela.Caixa, caso.Digitado);
        QTest::keyClick(janela.Caixa, caso.Tecla);
        EXPECT_EQ(janela.Caixa->text(), caso.NaCaixa);
        EXPECT_EQ(janela.Caixa->cursorPosition(), caso.Cursor) << caso.NaCaixa;
        janela.Outra->setFocus();
        EXPECT_EQ(janela.Caixa->text(), caso.Exibido);
        EXPECT_EQ(campo->GetTexto(), caso.Gravado) << caso.NaCaixa;
    }
}

TEST_F(EdicaoQt, ColarRecortarEErro) {
    TJanela janela;
    TField cpf(ftString);
    FormatarCPF(cpf);
    auto edicao = std::make_unique<TEdicaoMascaradaQt>(janela.Caixa, cpf);
    janela.Caixa->setFocus();
    QApplication::clipboard()->setText(" 529 982.247/25\r\n");
    QTest::keySequence(janela.Caixa, QKeySequence::Paste);
    EXPECT_EQ(janela.Caixa->text(), "529.982.247-25");
    janela.Caixa->setSelection(4, 3);
    QTest::keySequence(janela.Caixa, QKeySequence::Cut);
    EXPECT_EQ(janela.Caixa->text(), "529.   .247-25");
    EXPECT_EQ(QApplication::clipboard()->text(), "982");
    QTest::keySequence(janela.Caixa, QKeySequence::Undo);
    EXPECT_EQ(janela.Caixa->text(), "529.   .247-25");
    janela.Caixa->setText("11144477735");
    EXPECT_EQ(janela.Caixa->text(), "111.444.777-35") << "a text of the program";
    janela.Outra->setFocus();
    EXPECT_EQ(cpf.GetValor(), Variant(u"11144477735"));
    edicao.reset();
    QTest::keyClicks(janela.Caixa, "abc");
    EXPECT_TRUE(janela.Caixa->text().contains("abc")) << "no longer bound";

    TField data(ftDate);
    FormatarData(data);
    TEdicaoMascaradaQt edicaoData(janela.Caixa, data);
    janela.Caixa->setFocus();
    QTest::keyClicks(janela.Caixa, "30022024");
    janela.Outra->setFocus();
    EXPECT_EQ(janela.Caixa->text(), "30/02/2024") << "a refused text stays";
    EXPECT_NE(edicaoData.GetErro(), u"");
    EXPECT_TRUE(data.EhNulo());
    delete janela.Caixa;
    edicaoData.Atualizar();
    EXPECT_EQ(edicaoData.GetWidget(), nullptr);
}

// What the box's own menu does, undone marks and all, counts as the same keys.
TEST_F(EdicaoQt, OMenuDaCaixaRecortaEColaNaMascara) {
    TJanela janela;
    TField cpf(ftString);
    FormatarCPF(cpf);
    const TEdicaoMascaradaQt edicao(janela.Caixa, cpf);
    // Undo, redo, a line, then these.
    enum TItem : int { itRecortar = 3, itColar = 5, itExcluir = 6 };
    const auto escolher = [&](TItem AItem) {
        const std::unique_ptr<QMenu> menu(janela.Caixa->createStandardContextMenu());
        ASSERT_GT(menu->actions().size(), AItem);
        menu->actions()[AItem]->trigger();
    };
    janela.Caixa->setFocus();
    janela.Caixa->setText("52911122225");
    janela.Caixa->setSelection(5, 2);
    escolher(itRecortar);
    EXPECT_EQ(janela.Caixa->text(), "529.1  .222-25");
    EXPECT_EQ(QApplication::clipboard()->text(), "11");
    EXPECT_EQ(janela.Caixa->cursorPosition(), 5);
    QApplication::clipboard()->setText("82.247/");
    escolher(itColar);
    EXPECT_EQ(janela.Caixa->text(), "529.182.247-25");
    EXPECT_EQ(janela.Caixa->cursorPosition(), 12);
    janela.Caixa->setSelection(0, 3);
    escolher(itExcluir);
    EXPECT_EQ(janela.Caixa->text(), "   .182.247-25");
    janela.Caixa->selectAll();
    QApplication::clipboard()->setText("111.444.777-35 e mais");
    escolher(itColar);
    EXPECT_EQ(janela.Caixa->text(), "111.444.777-35");
    janela.Outra->setFocus();
    EXPECT_EQ(cpf.GetTexto(), u"11144477735");
}

TEST_F(EdicaoQt, GravarSemSairContinuaAEdicao) {
    TJanela janela;
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    TEdicaoMascaradaQt edicao(janela.Caixa, valor);
    edicao.Gravar();
    EXPECT_TRUE(valor.EhNulo());
    janela.Caixa->setFocus();
    QTest::keyClicks(janela.Caixa, "1234,5");
    edicao.Gravar();
    EXPECT_EQ(valor.GetTexto(), u"1234,50");
    EXPECT_EQ(janela.Caixa->text(), "1234,50") << "still edited, not displayed";
    QTest::keyClick(janela.Caixa, Qt::Key_End);
    QTest::keyClick(janela.Caixa, Qt::Key_Backspace);
    QTest::keyClicks(janela.Caixa, "9");
    janela.Outra->setFocus();
    EXPECT_EQ(janela.Caixa->text(), "1.234,59");
    edicao.Gravar();
    EXPECT_EQ(edicao.GetErro(), u"") << "what is displayed is not read again";
    EXPECT_EQ(valor.GetTexto(), u"1234,59");
}

TEST_F(EdicaoQt, FormatosMudados) {
    TJanela janela;
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    valor.SetValor(1234.5);
    const TEdicaoMascaradaQt edicao(janela.Caixa, valor);
    EXPECT_EQ(janela.Caixa->text(), "1.234,50");
    DefinirFormatSettings(TFormatSettings{});
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().SetUsarNosControlesDevExpress(true);
    EXPECT_EQ(janela.Caixa->text(), "1,234.50");
}

TEST_F(EdicaoQt, ValidacaoMoveOFocoAvisaEAborta) {
    using TRegra = void (*)(const TObjeto*, TWinControl*, std::u16string_view, std::u16string_view);
    const TRegra data = [](auto... AArgs) { ValidarData(AArgs...); };
    const TRegra ip = [](auto... AArgs) { ValidarIPAddress(AArgs...); };
    TJanela janela;
    TControleQt controle(janela.Caixa);
    for (const TRegra regra : {data, ip, TRegra{ValidarCRC}, TRegra{TOryUtilsValidacoes::ValidarEmail}}) {
        janela.Outra->setFocus();
        QString mostrado;
        QuandoMostrar([&] {
            for (const QLabel* rotulo : BuscarDialogo()->findChildren<QLabel*>()) mostrado += rotulo->text();
            QTest::keyClick(BuscarDialogo(), Qt::Key_Return);
        });
        EXPECT_THROW(regra(nullptr, &controle, u"x@", u"Verifique."), EAbort);
        EXPECT_EQ(mostrado, "Verifique.");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
        EXPECT_EQ(QApplication::focusWidget(), janela.Caixa);
    }
}

}  // namespace
}  // namespace OryUtils
