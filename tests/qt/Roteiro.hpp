#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include "forms/roteiros/Roteiros.hpp"
#include "toolkits/qt/ToolkitQt.hpp"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

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

/// A key of the window in front, as the window system gives it.
inline void DarTecla(Qt::Key ATecla, Qt::KeyboardModifiers AModificadores = Qt::NoModifier) {
    QTest::keyClick(BuscarDialogo()->windowHandle(), ATecla, AModificadores);
}

class TTesteQt : public testing::Test, public TUsuario {
protected:
    void SetUp() override {
        InstalarToolkitQt();
        BuscarToolkit().GetTamanhoFonte();  // makes the application where the host has none
    }

    int Executar(TFormulario& AFormulario, TPassos APassos) override {
        Seguir(std::make_shared<TPassos>(std::move(APassos)));
        return AFormulario.ExecutarModal();
    }
    bool HaFormulario() override { return BuscarDialogo() != nullptr; }
    void Teclar(std::uint16_t ATecla) override {
        const std::map<int, Qt::Key> teclas{{9, Qt::Key_Tab}, {13, Qt::Key_Return}, {27, Qt::Key_Escape}};
        const auto tecla = teclas.find(ATecla);
        DarTecla(tecla == teclas.end() ? static_cast<Qt::Key>(ATecla) : tecla->second);
    }
    void TeclarComAlt(char ALetra) override { DarTecla(static_cast<Qt::Key>(ALetra), Qt::AltModifier); }
    void Escrever(const char* ATexto) override { QTest::keyClicks(QApplication::focusWidget(), ATexto); }
    void Clicar(std::u16string_view ACaption) override { BuscarBotao(ACaption)->click(); }
    void ClicarComMouse(std::u16string_view ACaption) override {
        QTest::mouseClick(BuscarBotao(ACaption), Qt::LeftButton);
    }
    void FecharJanela() override { BuscarDialogo()->close(); }

private:
    static void Seguir(const std::shared_ptr<TPassos>& APassos) {
        if (APassos->empty()) return;
        QuandoMostrar([APassos] {
            const auto passo = std::move(APassos->front());
            APassos->pop_front();
            passo();
            Seguir(APassos);
        });
    }
    static QPushButton* BuscarBotao(std::u16string_view ACaption) {
        for (QPushButton* botao : BuscarDialogo()->findChildren<QPushButton*>())
            if (botao->text() == QStringView(ACaption)) return botao;
        return nullptr;
    }
};

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
