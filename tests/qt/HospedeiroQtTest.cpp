#include "oryutils/OryUtils.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "qt/Roteiro.hpp"
#include "toolkits/qt/ControleQt.hpp"

#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeView>

namespace OryUtils {
namespace {

TEST_F(TTesteQt, ControleDoHospedeiro) {
    TDuasCaixas janela;
    const TControleQt um(janela.Caixa);
    const TControleQt mesmo(janela.Caixa);
    const TControleQt outro(janela.Outra);
    EXPECT_TRUE(EhMesmoControle(&um, &mesmo));
    EXPECT_FALSE(EhMesmoControle(&um, &outro));

    EXPECT_TRUE(um.PodeReceberFoco());
    janela.Caixa->setEnabled(false);
    EXPECT_FALSE(um.PodeReceberFoco());
    janela.Caixa->setEnabled(true);
    janela.Caixa->hide();
    EXPECT_FALSE(um.PodeReceberFoco());
    janela.Caixa->show();
    janela.setEnabled(false);
    EXPECT_FALSE(um.PodeReceberFoco()) << "the parent is disabled";
    janela.setEnabled(true);
    EXPECT_FALSE(TControleQt(new QLabel(&janela)).PodeReceberFoco()) << "a label takes no focus";

    auto* passageiro = new QLineEdit(&janela);
    TControleQt orfao(passageiro);
    delete passageiro;
    EXPECT_FALSE(orfao.PodeReceberFoco());
    EXPECT_FALSE(EhMesmoControle(&orfao, &um));
    orfao.ReceberFoco();
}

TEST_F(TTesteQt, ValidacaoDevolveOFocoMostraOAvisoEAborta) {
    TDuasCaixas janela;
    janela.Outra->setFocus();
    TControleQt controle(janela.Caixa);
    QString mostrado;
    QuandoMostrar([&] {
        EXPECT_EQ(BuscarDialogo()->windowTitle(), "Aviso");
        for (const QLabel* rotulo : BuscarDialogo()->findChildren<QLabel*>()) mostrado += rotulo->text();
        EXPECT_EQ(BuscarDialogo()->windowHandle()->transientParent(), janela.windowHandle());
        EXPECT_EQ(QApplication::activeWindow(), BuscarDialogo());
        QTest::keyClick(BuscarDialogo(), Qt::Key_Return);
    });
    EXPECT_THROW(ValidarDocumento(nullptr, &controle, u"11222333000182", OryTypes::tiCNPJ), EAbort);
    EXPECT_EQ(mostrado, "CNPJ inválido. Verifique.");
    EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
    EXPECT_EQ(QApplication::focusWidget(), janela.Caixa);

    TControleQt outro(janela.Outra);
    EXPECT_FALSE(ValidarDocumento(&outro, &controle, u"1", OryTypes::tiCNPJ)) << "another control's exit shows nothing";
}

TEST_F(TTesteQt, HospedeiroQueFechaSuaJanelaDuranteODialogo) {
    auto janela = std::make_unique<TDuasCaixas>();
    TFormularioCompleto f;
    EXPECT_EQ(Responder(f,
                        [&] {
                            janela.reset();
                            BuscarFilho<QPushButton>(1)->click();
                        }),
              mrNo);
}

/// Hears of the texts of Qt for which no translator installed after it has words.
struct TSemTraducao : QTranslator {
    mutable QStringList Textos{};
    QString translate(const char* AContexto, const char* ATexto, const char*, int) const override {
        // The same in Portuguese, or a question of Qt's to itself, as the names of keys in shortcuts are.
        const QByteArrayList mesmos{"OK", "&OK", "QT_LAYOUT_DIRECTION"};
        if (AContexto[0] == 'Q' && QByteArray(AContexto) != "QShortcut" && !QByteArray(ATexto).startsWith("Alt+") &&
            !mesmos.contains(ATexto))
            Textos += ATexto;
        return {};
    }
    bool isEmpty() const override { return false; }
};

TEST_F(TTesteQt, OSeletorFalaPortuguesEApenasEscolhe) {
    QTemporaryDir pasta;
    QFile arquivo(pasta.filePath("notas.txt"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    arquivo.close();
    TSemTraducao semTraducao;
    QCoreApplication::installTranslator(&semTraducao);
    QStringList colunas;
    QString aviso;
    QuandoMostrar([&] {
        auto& seletor = *qobject_cast<QFileDialog*>(BuscarDialogo());
        EXPECT_TRUE(seletor.testOption(QFileDialog::ReadOnly)) << "no key or menu deletes or renames";
        EXPECT_FALSE(seletor.findChild<QAbstractButton*>("newFolderButton")->isEnabled());
        seletor.setViewMode(QFileDialog::Detail);
        const auto* lista = seletor.findChild<QTreeView*>();
        EXPECT_TRUE(QTest::qWaitFor([&] { return lista->model()->rowCount(lista->rootIndex()) == 1; }));
        for (int coluna = 0; coluna < 4; ++coluna)
            colunas += lista->model()->index(0, coluna, lista->rootIndex()).data().toString();
        EXPECT_FALSE(lista->model()->index(0, 0, lista->rootIndex()).flags().testFlag(Qt::ItemIsEditable));
        QuandoMostrar([&] {
            aviso = qobject_cast<QMessageBox*>(BuscarDialogo())->text();
            BuscarDialogo()->reject();
        });
        QTest::keyClicks(seletor.findChild<QLineEdit*>(), "outro.txt");
        QTest::keyClick(seletor.findChild<QLineEdit*>(), Qt::Key_Return);
        seletor.reject();
    });
    EXPECT_EQ(BuscarToolkit().EscolherArquivo(pasta.path().toStdU16String(), {}), std::nullopt);
    QuandoMostrar([] { BuscarDialogo()->reject(); });
    BuscarToolkit().EscolherPasta(u"Onde", u"");
    EXPECT_EQ(semTraducao.Textos.join('|').toStdString(), "");
    EXPECT_TRUE(aviso.contains("Arquivo não encontrado.")) << aviso.toStdString();
    ASSERT_EQ(colunas.size(), 4);
    EXPECT_EQ(colunas[2], "Arquivo TXT");
    EXPECT_TRUE(QRegularExpression(R"(^\d\d/\d\d/\d{4} \d\d:\d\d$)").match(colunas[3]).hasMatch())
        << colunas[3].toStdString();
}

TEST_F(TTesteQt, EscolhaDeArquivoEPasta) {
    QTemporaryDir pasta;
    for (const char* nome : {"notas.txt", "LEIAME"}) {
        QFile arquivo(pasta.filePath(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    }
    TToolkit& toolkit = BuscarToolkit();
    const std::u16string inicial = pasta.path().toStdU16String();
    const auto com = [](std::function<void(QFileDialog&)> AAcao) {
        QuandoMostrar([acao = std::move(AAcao)] { acao(*qobject_cast<QFileDialog*>(BuscarDialogo())); });
    };

    com([&](QFileDialog& ADialogo) {
        EXPECT_EQ(ADialogo.nameFilters(), (QStringList{"Textos (*.txt *.csv)", "Todos (*)"}));
        EXPECT_EQ(ADialogo.directory().canonicalPath(), QDir(pasta.path()).canonicalPath());
        ADialogo.selectNameFilter("Todos (*)");
        QTest::keyClicks(ADialogo.findChild<QLineEdit*>(), "LEIAME");
        QTest::keyClick(ADialogo.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    EXPECT_EQ(toolkit.EscolherArquivo(inicial, {{u"Textos", u"*.txt;*.csv"}, {u"Todos", u"*.*"}}),
              pasta.filePath("LEIAME").toStdU16String());

    com([](QFileDialog& ADialogo) { ADialogo.reject(); });
    EXPECT_EQ(toolkit.EscolherArquivo(inicial, {}), std::nullopt);

    com([](QFileDialog& ADialogo) {
        EXPECT_EQ(ADialogo.windowTitle(), "Onde gravar");
        QMetaObject::invokeMethod(&ADialogo, "accept");
    });
    EXPECT_EQ(toolkit.EscolherPasta(u"Onde gravar", inicial), inicial);
}

TEST_F(TTesteQt, SalvarPerguntaAntesDeSubstituirEmPortugues) {
    QTemporaryDir pasta;
    QFile arquivo(pasta.filePath("velho.txt"));
    ASSERT_TRUE(arquivo.open(QIODevice::WriteOnly));
    TSemTraducao semTraducao;
    QCoreApplication::installTranslator(&semTraducao);
    const auto salvar = [&](const char* ANome, bool ASubstitui) {
        QStringList vistos;
        QuandoMostrar([&, ANome] {
            auto& seletor = *qobject_cast<QFileDialog*>(BuscarDialogo());
            auto* nome = seletor.findChild<QLineEdit*>();
            vistos += {seletor.windowTitle(), nome->text()};
            nome->selectAll();
            QTest::keyClicks(nome, ANome);
            // The question, where there is one, comes up inside of the key.
            QTimer pergunta;
            QObject::connect(&pergunta, &QTimer::timeout, &seletor, [&] {
                auto* caixa = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (!caixa) return;
                vistos += caixa->text();
                for (QAbstractButton* botao : caixa->buttons()) vistos += botao->text();
                pergunta.stop();
                caixa->button(ASubstitui ? QMessageBox::Yes : QMessageBox::No)->click();
            });
            pergunta.start(5);
            QTest::keyClick(nome, Qt::Key_Return);
            if (seletor.isVisible()) seletor.reject();
        });
        const auto caminhos = BuscarToolkit().EscolherCaminhos({.Selecao = scSalvar,
                                                                .PastaInicial = pasta.path().toStdU16String(),
                                                                .NomeSugerido = u"nota.txt",
                                                                .ExtensaoPadrao = u"txt"});
        vistos += caminhos.empty() ? QString("-") : QFileInfo(QString::fromStdU16String(caminhos[0])).fileName();
        return vistos.join('|').toStdString();
    };
    const std::string pergunta = "Salvar como|nota.txt|velho.txt já existe.\nDeseja substituí-lo?|&Sim|&Não|";
    EXPECT_EQ(salvar("novo", true), "Salvar como|nota.txt|novo.txt");
    EXPECT_EQ(salvar("velho.txt", false), pergunta + "-");
    EXPECT_EQ(salvar("velho", true), pergunta + "velho.txt");
    EXPECT_EQ(semTraducao.Textos.join('|').toStdString(), "");
}

TEST_F(TTesteQt, VariosArquivos) {
    QTemporaryDir pasta;
    for (const char* nome : {"a.txt", "b.txt", "c.txt"})
        ASSERT_TRUE(QFile(pasta.filePath(nome)).open(QIODevice::WriteOnly));
    QuandoMostrar([&] {
        auto* nome = BuscarDialogo()->findChild<QLineEdit*>();
        EXPECT_EQ(BuscarDialogo()->windowTitle(), "Notas");
        QTest::keyClicks(nome, "\"a.txt\" \"c.txt\"");
        QTest::keyClick(nome, Qt::Key_Return);
        if (BuscarDialogo()) BuscarDialogo()->reject();
    });
    EXPECT_EQ(BuscarToolkit().EscolherCaminhos(
                  {.Selecao = scAbrirVarios, .Titulo = u"Notas", .PastaInicial = pasta.path().toStdU16String()}),
              (std::vector{pasta.filePath("a.txt").toStdU16String(), pasta.filePath("c.txt").toStdU16String()}));
}

TEST_F(TTesteQt, CursorEAreaDeTransferencia) {
    TToolkit& toolkit = BuscarToolkit();
    toolkit.SetCursor(ctAmpulheta);
    toolkit.SetCursor(ctAmpulheta);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    toolkit.SetCursor(ctNormal);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "twice the hourglass is one hourglass";
    toolkit.CopiarParaAreaDeTransferencia(u"linha\r\noutra");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "linha\noutra");
    EXPECT_FALSE(toolkit.EstahPressionada(16));
}

}  // namespace
}  // namespace OryUtils
