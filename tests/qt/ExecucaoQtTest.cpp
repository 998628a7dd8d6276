#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "qt/Roteiro.hpp"
#include "resistencia/Dialogos.hpp"
#include "resistencia/Quantidade.hpp"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <future>
#include <random>
#include <thread>

namespace OryUtils {
namespace {

TEST_F(TTesteQt, RoteirosDeTodoToolkit) { ConferirRoteiros(*this); }

TEST_F(TTesteQt, ModaisAninhadosVoltamAoDeFora) {
    TFormularioCompleto fora;
    TFormularioCompleto dentro;
    int interno = 0;
    TOuvinte<TObjeto*> abrir{[&](TObjeto*) {
        interno = Responder(dentro, [&] {
            EXPECT_THROW(fora.ExecutarModal(), Exception) << "it is shown already";
            BuscarFilho<QPushButton>(1)->click();
        });
    }};
    fora.Sim.OnClick = abrir.GetEvento();
    fora.Sim.SetModalResult(mrNone);
    EXPECT_EQ(Responder(fora,
                        [&] {
                            QDialog* janela = BuscarDialogo();
                            BuscarFilho<QPushButton>(0)->click();
                            EXPECT_EQ(BuscarDialogo(), janela) << "the outer one runs on";
                            EXPECT_TRUE(QTest::qWaitForWindowActive(janela));
                            BuscarFilho<QPushButton>(2)->click();
                        }),
              mrCancel);
    EXPECT_EQ(interno, mrNo);
}

TEST_F(TTesteQt, TemporizadorQueFalhaSaiPorProcessarMensagens) {
    TToolkit& toolkit = BuscarToolkit();
    bool disparou = false;
    const auto numero = toolkit.LigarTemporizador(1, [&] {
        disparou = true;
        throw EConvertError(u"x");
    });
    EXPECT_THROW(while (!disparou) toolkit.ProcessarMensagens(), EConvertError);
    toolkit.DesligarTemporizador(numero);
}

TEST_F(TTesteQt, FimDaAplicacaoCancelaTodosOsNiveis) {
    TFormularioCompleto fora;
    TFormularioCompleto dentro;
    int interno = 0;
    TOuvinte<TObjeto*> abrir{[&](TObjeto*) { interno = Responder(dentro, [] { QCoreApplication::exit(1); }); }};
    fora.Sim.OnClick = abrir.GetEvento();
    fora.Sim.SetModalResult(mrNone);
    int externo = 0;
    QTimer::singleShot(0, qApp, [&] { externo = Responder(fora, [] { BuscarFilho<QPushButton>(0)->click(); }); });
    EXPECT_EQ(QCoreApplication::exec(), 1);
    EXPECT_EQ(interno, mrCancel);
    EXPECT_EQ(externo, mrCancel);
}

TEST_F(TTesteQt, OutraThreadRecebeErroDocumentado) {
    TToolkit& toolkit = BuscarToolkit();
    EXPECT_TRUE(toolkit.EhThreadDaInterface());
    std::thread([&] {
        EXPECT_FALSE(toolkit.EhThreadDaInterface());
        TFormulario f;
        EXPECT_THROW(f.ExecutarModal(), Exception);
        EXPECT_THROW(toolkit.ExecutarModal(f), Exception);
        EXPECT_THROW(toolkit.MedirTexto(u"a", 0), Exception);
        EXPECT_THROW(toolkit.LigarTemporizador(1, [] {}), Exception);
        EXPECT_THROW(toolkit.EscolherPasta(u"", u""), Exception);
        EXPECT_NO_THROW(toolkit.ProcessarMensagens());
    }).join();
}

TEST_F(TTesteQt, MilFormulariosNadaDeixam) {
    const auto abrir = [](int AVezes) {
        for (int i = 0; i < AVezes; ++i) {
            TFormularioCompleto f;
            TOuvinte<TObjeto*> fechar{[&](TObjeto*) { f.SetModalResult(mrOk); }};
            f.OnShow = fechar.GetEvento();
            ASSERT_EQ(f.ExecutarModal(), mrOk);
        }
        QCoreApplication::processEvents();
    };
    abrir(100);
    const qsizetype widgets = QApplication::allWidgets().size();
    const auto janelas = QGuiApplication::allWindows().size();
    const long ocupado = Testes::BuscarMemoriaKiB();
    abrir(1000);
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
    EXPECT_EQ(QGuiApplication::allWindows().size(), janelas);
    // One form takes tens of kilobytes; a thousand lost ones would be far above this.
    EXPECT_LT(Testes::BuscarMemoriaKiB(), ocupado + 2'000);
}

TEST_F(TTesteQt, MuitosDialogosNadaDeixam) {
    TOryUtilsDialogs dialogos;
    bool confirmar = false;
    QTimer respondente;
    QObject::connect(&respondente, &QTimer::timeout, [&] {
        QDialog* dialogo = BuscarDialogo();
        if (dialogo && confirmar)
            QTest::keyClick(dialogo, Qt::Key_Return);
        else if (dialogo)
            dialogo->reject();
    });
    respondente.start(0);
    const auto mostrar = [&](int AVez) {
        confirmar = AVez % 2 == 0;
        Testes::MostrarDialogo(dialogos, AVez, confirmar);
        QCoreApplication::processEvents();
    };
    mostrar(0);
    const qsizetype widgets = QApplication::allWidgets().size();
    Testes::MostrarSemCrescimento(Testes::QuantidadeDeDialogos(100, 10'000), mostrar);
    EXPECT_EQ(QApplication::allWidgets().size(), widgets);
}

TEST_F(TTesteQt, MedidaDeTextoBastaAoRotulo) {
    TToolkit& toolkit = BuscarToolkit();
    EXPECT_EQ(toolkit.MedirTexto(u"", 100), TTamanho{});
    const int linha = toolkit.MedirTexto(u"Mg", 0).Altura;
    EXPECT_GT(toolkit.MedirTexto(u"a\r\nb", 0).Altura, linha) << "line breaks count";
    EXPECT_EQ(toolkit.MedirTexto(u"a\r\nb", 0), toolkit.MedirTexto(u"a\nb", 0));

    const unsigned semente = std::random_device{}();
    std::mt19937 sorteio(semente);
    const char16_t letras[] = u"aeimrst ÁçãWg., -\n&";
    for (int caso = 0; caso < 300; ++caso) {
        std::u16string texto;
        for (auto n = sorteio() % 200; n > 0; --n) texto += letras[sorteio() % (std::size(letras) - 1)];
        const int maxima = caso % 3 == 0 ? 0 : 60 + static_cast<int>(sorteio() % 300);
        const TTamanho medida = toolkit.MedirTexto(texto, maxima);
        QLabel rotulo;
        rotulo.setTextFormat(Qt::PlainText);
        rotulo.setWordWrap(maxima > 0);
        rotulo.setText(QString::fromStdU16String(texto));
        if (texto.empty()) continue;
        if (maxima > 0)
            EXPECT_LE(rotulo.heightForWidth(medida.Largura), medida.Altura) << "seed " << semente << " case " << caso;
        else
            EXPECT_LE(rotulo.sizeHint().width(), medida.Largura + 1) << "seed " << semente << " case " << caso;
    }
}

}  // namespace
}  // namespace OryUtils
