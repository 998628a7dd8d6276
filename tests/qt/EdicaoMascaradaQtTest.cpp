// Real line edits bound to fields.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/UnOryUtilsFormatacoes.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "forms/caixas/Caixas.hpp"
#include "qt/Roteiro.hpp"
#include "resistencia/Quantidade.hpp"
#include "toolkits/qt/EdicaoMascaradaQt.hpp"

#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QVBoxLayout>

#include <array>
#include <memory>

namespace OryUtils {
namespace {

QString ParaQString(std::u16string_view ATexto) {
    return QString::fromUtf16(ATexto.data(), static_cast<qsizetype>(ATexto.size()));
}

class TCaixasQt : public TCaixas {
public:
    TCaixasQt() {
        auto* coluna = new QVBoxLayout(&FJanela);
        for (QLineEdit*& caixa : FCaixas) coluna->addWidget(caixa = new QLineEdit);
        coluna->addWidget(FSolta = new QLineEdit);
        Ativar(FJanela);
    }

    TEditorDeCampo& Ligar(std::size_t ACaixa, TField& ACampo) override {
        FEdicoes[ACaixa].reset();
        FEdicoes[ACaixa] = std::make_unique<TEdicaoMascaradaQt>(FCaixas[ACaixa], ACampo);
        return *FEdicoes[ACaixa];
    }
    void Desligar() override {
        for (auto& edicao : FEdicoes) edicao.reset();
        FSolta->setFocus();
        for (QLineEdit* caixa : FCaixas) caixa->clear();
    }
    std::u16string Texto(std::size_t ACaixa) override { return FCaixas[ACaixa]->text().toStdU16String(); }
    void Entrar(std::size_t ACaixa) override { FCaixas[ACaixa]->setFocus(); }
    void Deixar() override { FSolta->setFocus(); }
    void IrEVoltar() override {
        QWidget* foco = FJanela.focusWidget();
        QFocusEvent sai(QEvent::FocusOut, Qt::ActiveWindowFocusReason),
            volta(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(foco, &sai);
        QApplication::sendEvent(foco, &volta);
    }
    void Digitar(std::u16string_view ATexto) override {
        for (const QChar c : ParaQString(ATexto)) {
            QKeyEvent tecla(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(Foco(), &tecla);
        }
    }
    void Colar(std::u16string_view ATexto) override {
        QApplication::clipboard()->setText(ParaQString(ATexto));
        QTest::keySequence(Foco(), QKeySequence::Paste);
    }
    void Teclar(TTeclaMascara ATecla) override {
        constexpr Qt::Key CTeclas[] = {Qt::Key_Left,      Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                                       Qt::Key_Backspace, Qt::Key_Delete};  // in the order of TTeclaMascara
        QTest::keyClick(Foco(), CTeclas[ATecla]);
    }
    void TeclarDecimal() override { QTest::keyClick(Foco(), Qt::Key_Period, Qt::KeypadModifier); }
    void TeclarDesfazer() override { QTest::keySequence(Foco(), QKeySequence::Undo); }
    void TeclarEsc() override { QTest::keyClick(Foco(), Qt::Key_Escape); }
    void Selecionar(std::size_t AInicio, std::size_t AFim) override {
        Foco()->setSelection(static_cast<int>(AInicio), static_cast<int>(AFim - AInicio));
    }
    void Escrever(std::size_t ACaixa, std::u16string_view ATexto) override {
        FCaixas[ACaixa]->setText(ParaQString(ATexto));
    }
    void TornarSomenteLeitura(std::size_t ACaixa, bool ASomenteLeitura) override {
        FCaixas[ACaixa]->setReadOnly(ASomenteLeitura);
    }
    QLineEdit* GetCaixa(std::size_t ACaixa) const { return FCaixas[ACaixa]; }

private:
    static void Ativar(QWidget& AJanela) {
        AJanela.show();
        AJanela.activateWindow();  // a bare X server has no window manager to do it
        EXPECT_TRUE(QTest::qWaitForWindowActive(&AJanela));
    }
    QLineEdit* Foco() const { return static_cast<QLineEdit*>(FJanela.focusWidget()); }

    QWidget FJanela;
    std::array<QLineEdit*, CQuantas> FCaixas{};
    QLineEdit* FSolta = nullptr;
    std::array<std::unique_ptr<TEdicaoMascaradaQt>, CQuantas> FEdicoes;
};

class EdicaoQt : public TTesteQt {
protected:
    TFormatosTemporarios FFormatos{BuscarFormatosBrasileiros()};
};

TEST_F(EdicaoQt, OQueValeEmQualquerCaixa) {
    TCaixasQt caixas;
    ConferirCaixas(caixas);
}

TEST_F(EdicaoQt, PassearSemDigitarNadaMuda) {
    TCaixasQt caixas;
    PassearSemDigitar(caixas, Testes::Quantidade(60, 1000));
}

TEST_F(EdicaoQt, UmNumeroUmValor) {
    TCaixasQt caixas;
    CompararGrafias(caixas, Testes::Quantidade(200, 5000));
}

// What the box's own menu does, undone marks and all, counts as the same keys.
TEST_F(EdicaoQt, OMenuDaCaixaRecortaEColaNaMascara) {
    TField cpf(ftString);
    TCaixasQt caixas;
    FormatarCPF(cpf);
    caixas.Ligar(0, cpf);
    QLineEdit* caixa = caixas.GetCaixa(0);
    // Undo, redo, a line, then these.
    enum TItem : int { itRecortar = 3, itColar = 5, itExcluir = 6 };
    const auto escolher = [&](TItem AItem) {
        const std::unique_ptr<QMenu> menu(caixa->createStandardContextMenu());
        ASSERT_GT(menu->actions().size(), AItem);
        menu->actions()[AItem]->trigger();
    };
    caixas.Entrar(0);
    caixa->setText("52911122225");
    caixas.Selecionar(5, 7);
    escolher(itRecortar);
    EXPECT_EQ(caixa->text(), "529.1  .222-25");
    EXPECT_EQ(QApplication::clipboard()->text(), "11");
    EXPECT_EQ(caixa->cursorPosition(), 5);
    QApplication::clipboard()->setText("82.247/");
    escolher(itColar);
    EXPECT_EQ(caixa->text(), "529.182.247-25");
    EXPECT_EQ(caixa->cursorPosition(), 12);
    caixas.Selecionar(0, 3);
    escolher(itExcluir);
    EXPECT_EQ(caixa->text(), "   .182.247-25");
    QTest::keyClick(caixa, Qt::Key_End);
    QTest::keyClick(caixa, Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_FALSE(caixa->text().contains("25")) << "a word deleted";
    caixa->selectAll();
    QApplication::clipboard()->setText("111.444.777-35 e mais");
    escolher(itColar);
    EXPECT_EQ(caixa->text(), "   .182.247-  ") << "refused as a whole";
    caixas.Deixar();
}

TEST_F(EdicaoQt, MetodoDeEntradaETextoArrastado) {
    TField cpf(ftString);
    TCaixasQt caixas;
    FormatarCPF(cpf);
    caixas.Ligar(0, cpf);
    QLineEdit* caixa = caixas.GetCaixa(0);
    caixas.Entrar(0);
    QInputMethodEvent compondo("5", {});
    QApplication::sendEvent(caixa, &compondo);
    EXPECT_EQ(caixa->text(), "   .   .   -  ") << "still being composed";
    QInputMethodEvent composto;
    composto.setCommitString("529x98");
    QApplication::sendEvent(caixa, &composto);
    EXPECT_EQ(caixa->text(), "529.98 .   -  ");
    QMimeData dados;
    dados.setText("224725");
    const auto soltar = [&](int ALugar) {
        QDragEnterEvent entra({ALugar, 5}, Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(caixa, &entra);
        QDropEvent solta(QPointF(ALugar, 5), Qt::CopyAction, &dados, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(caixa, &solta);
    };
    soltar(caixa->width() - 2);
    EXPECT_EQ(caixa->text(), "529.98 .   -  ") << "behind the last place there is no room";
    soltar(0);
    EXPECT_EQ(caixa->text(), "224.725.   -  ");
    caixas.Deixar();
}

// What the host has limited holds less than the field: the rest is not lost.
TEST_F(EdicaoQt, CaixaMenorDoQueOValor) {
    TField nome(ftString);
    TCaixasQt caixas;
    nome.SetValor(u"Comercial Modelo");
    caixas.GetCaixa(0)->setMaxLength(9);
    TEditorDeCampo& editor = caixas.Ligar(0, nome);
    caixas.Entrar(0);
    caixas.Teclar(tmFim);
    caixas.Teclar(tmApagar);
    caixas.Deixar();
    EXPECT_NE(editor.GetErro(), u"");
    EXPECT_EQ(nome.GetTexto(), u"Comercial Modelo");
    // Room for a phone of ten digits: the eleventh is refused, whether typed, pasted or written by the program.
    caixas.GetCaixa(0)->setMaxLength(13);
    TField fone(ftString);
    FormatarFoneDDD(fone);
    TEditorDeCampo& editorFone = caixas.Ligar(0, fone);
    caixas.Entrar(0);
    caixas.Colar(u"11933334444");
    EXPECT_EQ(caixas.Texto(0), u"(  )    -    ");
    caixas.Digitar(u"11333344445");
    EXPECT_EQ(caixas.Texto(0), u"(11)3333-4444");
    caixas.Deixar();
    EXPECT_EQ(fone.GetTexto(), u"1133334444");
    caixas.Escrever(0, u"11933334444");
    editorFone.Gravar();
    EXPECT_NE(editorFone.GetErro(), u"");
    EXPECT_EQ(fone.GetTexto(), u"1133334444");
    caixas.Desligar();
}

// Whoever is told of a refusal may have the box unbound.
TEST_F(EdicaoQt, DesligadaAoRecusar) {
    struct TOuvinte {
        TCaixasQt Caixas;
        void Recusar(TEditorDeCampo&) { Caixas.Desligar(); }
    } ouvinte;
    TField cpf(ftString);
    FormatarCPF(cpf);
    ouvinte.Caixas.Ligar(0, cpf).OnRecusar = TEditorDeCampo::TAoRecusar::De<&TOuvinte::Recusar>(ouvinte);
    ouvinte.Caixas.Entrar(0);
    QInputMethodEvent composto;
    composto.setCommitString("5x29");
    QApplication::sendEvent(ouvinte.Caixas.GetCaixa(0), &composto);
    EXPECT_EQ(ouvinte.Caixas.Texto(0), u"");
}

// Esc closes a dialog; a box in it does not keep the key.
TEST_F(EdicaoQt, EscEmDialogoEhDoDialogo) {
    QDialog dialogo;
    auto* caixa = new QLineEdit(&dialogo);
    TField cpf(ftString);
    FormatarCPF(cpf);
    const TEdicaoMascaradaQt edicao(caixa, cpf);
    dialogo.show();
    caixa->setFocus();
    QTest::keyClicks(caixa, "529");
    QTest::keyClick(caixa, Qt::Key_Escape);
    EXPECT_FALSE(dialogo.isVisible());
}

TEST_F(EdicaoQt, ACaixaSeVaiEALigacaoFica) {
    TDuasCaixas janela;
    TField cpf(ftString);
    FormatarCPF(cpf);
    { const TEdicaoMascaradaQt edicao(janela.Caixa, cpf); }
    QTest::keyClicks(janela.Caixa, "abc");
    EXPECT_EQ(janela.Caixa->text(), "abc") << "no longer bound";
    TEdicaoMascaradaQt edicao(janela.Caixa, cpf);
    delete janela.Caixa;
    edicao.Atualizar();
    cpf.SetValor(u"1");
    EXPECT_EQ(edicao.GetWidget(), nullptr);
}

}  // namespace
}  // namespace OryUtils
