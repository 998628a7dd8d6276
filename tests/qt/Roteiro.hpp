#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include "forms/roteiros/Roteiros.hpp"
#include "toolkits/qt/ToolkitQt.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace OryUtils {

/// The dialog in front now.
inline QDialog* BuscarDialogo() { return qobject_cast<QDialog*>(QApplication::activeModalWidget()); }

/// The k-th child of that class, in creation order.
template <typename T>
T* BuscarFilho(qsizetype AIndice = 0) {
    const auto filhos = BuscarDialogo()->findChildren<T*>(QString(), Qt::FindDirectChildrenOnly);
    return AIndice < filhos.size() ? filhos[AIndice] : nullptr;
}

/// Runs APassos once the dialog that is shown next has its window in front.
inline void QuandoMostrar(std::function<void()> APassos) {
    QTimer::singleShot(0, qApp, [passos = std::move(APassos)] {
        if (!BuscarDialogo()) return QuandoMostrar(passos);  // it opens from an event still to come
        ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == BuscarDialogo(); }));
        passos();
    });
}

/// Shows AFormulario, does APassos as its user, and gives what the modal run answered.
inline int Responder(TFormulario& AFormulario, std::function<void()> APassos) {
    QuandoMostrar(std::move(APassos));
    return AFormulario.ExecutarModal();
}

/// A key or a letter for the window in front, as the window system gives it.
template <typename TTeclaQt>
void DarTecla(TTeclaQt ATecla, Qt::KeyboardModifiers AModificadores = Qt::NoModifier) {
    const QWidget* frente = BuscarDialogo() ? BuscarDialogo() : QApplication::activeWindow();
    QTest::keyClick(frente->windowHandle(), ATecla, AModificadores);
}

class TUsuarioQt : public TUsuario {
    std::unique_ptr<QWidget> FHospede;

public:
    TUsuarioQt() {
        InstalarToolkitQt();
        BuscarToolkit().GetTamanhoFonte();  // makes the application where the host has none
    }

    int Executar(TFormulario& AFormulario, TPassos APassos) override {
        // A form inside of another has its own steps; the outer one's wait.
        Seguir(std::make_shared<TPassos>(std::move(APassos)), false);
        return AFormulario.ExecutarModal();
    }
    void Conduzir(TPassos APassos, const std::function<void()>& AMostrar) override {
        const auto passos = std::make_shared<TPassos>(std::move(APassos));
        Seguir(passos, true);
        AMostrar();
        passos->clear();
    }
    bool HaFormulario() override { return BuscarDialogo() != nullptr; }
    void Teclar(std::uint16_t ATecla) override { DarTecla(BuscarTecla(ATecla)); }
    void TeclarComAlt(char ALetra) override {
        DarTecla(static_cast<Qt::Key>(ALetra), Qt::AltModifier);
        // The button of a letter is drawn as pressed first, and clicked a little later.
        EXPECT_TRUE(QTest::qWaitFor([] {
            const QDialog* dialogo = BuscarDialogo();
            return !dialogo || std::ranges::none_of(dialogo->findChildren<QAbstractButton*>(),
                                                    [](const auto* ABotao) { return ABotao->isDown(); });
        }));
    }
    void TeclarComCtrl(char ALetra) override {
        DarTecla(BuscarTecla(static_cast<std::uint16_t>(ALetra)), Qt::ControlModifier);
    }
    void TeclarComShift(std::uint16_t ATecla) override {
        DarTecla(ATecla == CTab ? Qt::Key_Backtab : BuscarTecla(ATecla), Qt::ShiftModifier);
    }
    TFoco VerFoco() override;
    std::u16string LerAreaDeTransferencia() override;
    void Escrever(const char* ATexto) override {
        for (const char* letra = ATexto; *letra; ++letra) DarTecla(*letra);
    }
    void Clicar(std::u16string_view ACaption) override { BuscarBotao(ACaption)->click(); }
    void ClicarComMouse(std::u16string_view ACaption) override {
        QAbstractButton* botao = BuscarBotao(ACaption);
        QTest::mouseClick(botao, Qt::LeftButton, {}, QPoint(5, botao->height() / 2));
    }
    void FecharJanela() override { BuscarDialogo()->close(); }
    void Redimensionar(const TFormulario&, TTamanho ACliente) override {
        BuscarDialogo()->resize(ACliente.Largura, ACliente.Altura);
    }
    std::vector<TVisto> Ver(const TFormulario& AFormulario) override;
    TVisao Medir() override;
    bool ClicarSeHouver(std::u16string_view ACaption) override {
        QAbstractButton* botao = BuscarBotao(ACaption);
        if (botao) botao->click();
        return botao != nullptr;
    }
    std::vector<TRetangulo> BuscarTelas() override;
    void AbrirEm(std::size_t ATela) override;
    void ArrastarPara(std::size_t ATela) override;
    long ContarObjetos() override {
        return static_cast<long>(QApplication::allWidgets().size() + QGuiApplication::allWindows().size());
    }

    static Qt::Key BuscarTecla(std::uint16_t ATecla) {
        const std::map<int, Qt::Key> teclas{{CTab, Qt::Key_Tab},  {CEnter, Qt::Key_Return}, {CEsc, Qt::Key_Escape},
                                            {CAcima, Qt::Key_Up}, {CAbaixo, Qt::Key_Down},  {CF1, Qt::Key_F1}};
        const auto tecla = teclas.find(ATecla);
        return tecla == teclas.end() ? static_cast<Qt::Key>(ATecla) : tecla->second;
    }

private:
    /// AEmTodos  the steps go on in a dialog that one of them brings up, before that step has come to its end.
    static void Seguir(const std::shared_ptr<TPassos>& APassos, bool AEmTodos) {
        if (APassos->empty()) return;
        QuandoMostrar([APassos, AEmTodos] {
            if (APassos->empty()) return;
            const auto passo = std::move(APassos->front());
            APassos->pop_front();
            const auto acabou = std::make_shared<bool>(false);
            if (AEmTodos) SeguirNoProximo(APassos, BuscarDialogo(), acabou);
            passo();
            if (!std::exchange(*acabou, true)) Seguir(APassos, AEmTodos);
        });
    }
    /// Until the step has come to its end, for which Seguir waits.
    static void SeguirNoProximo(const std::shared_ptr<TPassos>& APassos, const QDialog* AAnterior,
                                const std::shared_ptr<bool>& AAcabou) {
        QTimer::singleShot(0, qApp, [=] {
            if (*AAcabou) return;
            if (!BuscarDialogo() || BuscarDialogo() == AAnterior) return SeguirNoProximo(APassos, AAnterior, AAcabou);
            *AAcabou = true;
            Seguir(APassos, true);
        });
    }
    static QAbstractButton* BuscarBotao(std::u16string_view ACaption) {
        for (QAbstractButton* botao : BuscarDialogo()->findChildren<QAbstractButton*>())
            if (botao->text() == QStringView(ACaption)) return botao;
        return nullptr;
    }
};

class TTesteQt : public testing::Test, public TUsuarioQt {};

/// A window of the host, with two boxes.
struct TDuasCaixas : QWidget {
    QLineEdit* Caixa = new QLineEdit;
    QLineEdit* Outra = new QLineEdit;
    TDuasCaixas() {
        auto* coluna = new QVBoxLayout(this);
        coluna->addWidget(Caixa);
        coluna->addWidget(Outra);
        show();
        activateWindow();  // a bare X server has no window manager to do it
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        Outra->setFocus();
    }
};

}  // namespace OryUtils
