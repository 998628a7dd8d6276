// Real line edits bound to fields: typed into, pasted into, left.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "forms/CasosDeEdicao.hpp"
#include "qt/Roteiro.hpp"
#include "toolkits/qt/EdicaoMascaradaQt.hpp"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>

#include <memory>

namespace OryUtils {
namespace {

class EdicaoQt : public TTesteQt {
protected:
    void SetUp() override {
        TTesteQt::SetUp();
        ControladorFormatos().GetFormats();
    }
    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

TEST_F(EdicaoQt, DigitarEDeixar) {
    constexpr Qt::Key CTeclas[] = {Qt::Key_Left, Qt::Key_Right,     Qt::Key_Home,
                                   Qt::Key_End,  Qt::Key_Backspace, Qt::Key_Delete};  // in the order of TTeclaMascara
    TDuasCaixas janela;
    for (const TCasoDeEdicao& caso : CCasosDeEdicao) {
        const auto campo = caso.CriarCampo();
        const TEdicaoMascaradaQt edicao(janela.Caixa, *campo);
        janela.Caixa->setFocus();
        QTest::keyClicks(janela.Caixa, caso.Digitado);
        QTest::keyClick(janela.Caixa, caso.Tecla ? CTeclas[*caso.Tecla] : Qt::Key_Shift);
        EXPECT_EQ(janela.Caixa->text(), caso.NaCaixa);
        EXPECT_EQ(janela.Caixa->cursorPosition(), caso.Cursor) << caso.NaCaixa;
        janela.Outra->setFocus();
        EXPECT_EQ(janela.Caixa->text(), caso.Exibido);
        EXPECT_EQ(ParaUtf8(campo->GetTexto()), caso.Gravado);
    }
}

TEST_F(EdicaoQt, ColarRecortarEErro) {
    TDuasCaixas janela;
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
    TDuasCaixas janela;
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
    TDuasCaixas janela;
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
    TDuasCaixas janela;
    TNumericField valor(ftFloat);
    FormatarCampoValor(valor);
    valor.SetValor(1234.5);
    const TEdicaoMascaradaQt edicao(janela.Caixa, valor);
    EXPECT_EQ(janela.Caixa->text(), "1.234,50");
    DefinirFormatSettings(TFormatSettings{});
    GOryUtilsFormatacoes->GetFormatoPadraoDatasEValores().SetUsarNosControlesDevExpress(true);
    EXPECT_EQ(janela.Caixa->text(), "1,234.50");
}

}  // namespace
}  // namespace OryUtils
