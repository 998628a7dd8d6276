#include "oryutils/platform/Teclado.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "qt/Roteiro.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QWidget>

namespace OryUtils {
namespace {

/// Remembers the keys that a window of a real X server sees.
struct TJanelaDeTeclas : QWidget {
    QStringList Teclas{};
    TJanelaDeTeclas() {
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    void keyPressEvent(QKeyEvent* AEvento) override { Anotar("+", *AEvento); }
    void keyReleaseEvent(QKeyEvent* AEvento) override { Anotar("-", *AEvento); }
    void Anotar(const char* AMarca, const QKeyEvent& AEvento) {
        if (!AEvento.isAutoRepeat()) Teclas += AMarca + QKeySequence(AEvento.key()).toString();
    }
    QString Esperar(qsizetype AQuantidade) {
        EXPECT_TRUE(QTest::qWaitFor([&] { return Teclas.size() >= AQuantidade; }));
        return std::exchange(Teclas, {}).join(' ');
    }
};

class TecladoQt : public TTesteQt {
protected:
    void SetUp() override {
        BuscarToolkit().ProcessarMensagens();
        if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "needs an X server";
    }
};

TEST_F(TecladoQt, UmaJanelaVeAsTeclasSimuladas) {
    TJanelaDeTeclas janela;
    struct TCaso {
        std::uint16_t Tecla;
        TShiftState Shift;
        bool Estendida;
        qsizetype Eventos;
        const char *Teclas, *Porque;
    };
    const TCaso casos[] = {
        {0x41, {}, false, 2, "+A -A", "a letter"},
        {0x41, {ssCtrl, ssShift}, false, 6, "+Control +Shift +A -A -Shift -Control", "with modifiers held"},
        {0x74, {ssAlt}, false, 4, "+Alt +F5 -F5 -Alt", "a function key"},
        {0x0D, {}, false, 2, "+Return -Return", ""},
        {0x0D, {}, true, 2, "+Enter -Enter", "extended: the keypad's"},
        {0x25, {}, true, 2, "+Left -Left", ""},
        {0xBC, {}, false, 2, "+, -,", "punctuation by its place"},
        {0x35, {}, false, 2, "+5 -5", "a digit"},
        {0x2E, {}, true, 2, "+Del -Del", ""},
    };
    for (const TCaso& caso : casos) {
        SimularPressionamentoTecla(caso.Tecla, caso.Shift, caso.Estendida);
        EXPECT_EQ(janela.Esperar(caso.Eventos), caso.Teclas) << caso.Tecla << ' ' << caso.Porque;
    }
    SimularPressionamentoTecla(0xFFFF, {}, false);  // no key at all
    SimularPressionamentoTecla(0x42, {}, false);
    EXPECT_EQ(janela.Esperar(2), "+B -B");
}

TEST_F(TecladoQt, EstadoEInatividade) {
    using Interno::EnviarEventosDeTecla;
    using Interno::TEventoDeTecla;
    constexpr std::uint16_t CTeclas[] = {0x41, 0x10, 0x11, 0x12, 0x0D, 0x70, 0x2E};
    for (const std::uint16_t tecla : CTeclas) {
        EXPECT_FALSE(TOryUtilsSistema::TeclaEstahPressionada(tecla)) << tecla;
        EnviarEventosDeTecla(std::array{TEventoDeTecla{.Tecla = tecla}});
        EXPECT_TRUE(TOryUtilsSistema::TeclaEstahPressionada(tecla)) << tecla;
        EXPECT_FALSE(TOryUtilsSistema::TeclaEstahPressionada(0x5A)) << tecla;
        EnviarEventosDeTecla(std::array{TEventoDeTecla{.Tecla = tecla, .Soltar = true}});
        EXPECT_FALSE(TOryUtilsSistema::TeclaEstahPressionada(tecla)) << tecla;
    }
    EnviarEventosDeTecla(std::array{TEventoDeTecla{.Tecla = 0x11, .Estendida = true}});
    EXPECT_TRUE(TOryUtilsSistema::TeclaEstahPressionada(0x11)) << "the right one counts";
    EXPECT_TRUE(TOryUtilsSistema::TeclaEstahPressionada(0xA3));
    EXPECT_FALSE(TOryUtilsSistema::TeclaEstahPressionada(0xA2));
    EnviarEventosDeTecla(std::array{TEventoDeTecla{.Tecla = 0x11, .Soltar = true, .Estendida = true}});
    // The server's clock runs: sooner or later it has seen no input for a while.
    EXPECT_TRUE(QTest::qWaitFor([] { return TOryUtilsSistema::BuscarTempoInatividadeSistema() > 0; }));
}

}  // namespace
}  // namespace OryUtils
