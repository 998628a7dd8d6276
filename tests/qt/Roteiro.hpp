#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include "toolkits/qt/ToolkitQt.hpp"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <functional>
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

/// A method bound as an event, from a closure that the test keeps.
template <typename... TArgs>
struct TOuvinte {
    std::function<void(TArgs...)> Acao;
    void Chamar(TArgs... AArgs) { Acao(AArgs...); }
    TEvento<TArgs...> GetEvento() { return TEvento<TArgs...>::template De<&TOuvinte::Chamar>(*this); }
};

class TTesteQt : public testing::Test {
protected:
    void SetUp() override {
        InstalarToolkitQt();
        BuscarToolkit().GetTamanhoFonte();  // makes the application where the host has none
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

/// Edit, memo, check box, three options and the buttons Sim (default), Não, Cancelar (cancel).
struct TFormularioCompleto : TFormulario {
    TIcone& Icone = Adicionar<TIcone>();
    TRotulo& Mensagem = Adicionar<TRotulo>();
    TCaixaEdicao& Edicao = Adicionar<TCaixaEdicao>();
    TMemorando& Memorando = Adicionar<TMemorando>();
    TCaixaChecagem& Caixa = Adicionar<TCaixaChecagem>();
    TGrupoOpcoes& Grupo = Adicionar<TGrupoOpcoes>();
    TBotao& Sim = Adicionar<TBotao>();
    TBotao& Nao = Adicionar<TBotao>();
    TBotao& Cancelar = Adicionar<TBotao>();

    TFormularioCompleto() {
        SetTitulo(u"Confirmação");
        SetTamanhoCliente(420, 330);
        Icone.SetIdIcone(32514);
        Icone.SetRetangulo({10, 10, 32, 32});
        Mensagem.SetTexto(u"Gravar & sair?\r\nHá alterações.");
        Mensagem.SetRetangulo({60, 10, 300, 40});
        Edicao.SetRetangulo({60, 60, 200, 24});
        Memorando.SetRetangulo({60, 90, 300, 60});
        Caixa.SetTexto(u"Não &perguntar de novo");
        Caixa.SetRetangulo({60, 155, 300, 20});
        Grupo.SetTexto(u"Opções: ");
        Grupo.SetRetangulo({60, 180, 200, 100});
        for (const char16_t* item : {u"Uma", u"Outra", u"Nenhuma"}) Grupo.AdicionarItem(item);
        const struct {
            TBotao& Botao;
            const char16_t* Texto;
            int Resultado;
        } botoes[] = {{Sim, u"&Sim", mrYes}, {Nao, u"&Não", mrNo}, {Cancelar, u"&Cancelar", mrCancel}};
        int left = 60;
        for (const auto& b : botoes) {
            b.Botao.SetTexto(b.Texto);
            b.Botao.SetModalResult(b.Resultado);
            b.Botao.SetRetangulo({left, 295, 75, 25});
            left += 78;
        }
        Sim.SetPadrao(true);
        Cancelar.SetCancelar(true);
    }
};

}  // namespace OryUtils
