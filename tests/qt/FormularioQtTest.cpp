#include "oryutils/runtime/Excecoes.hpp"

#include "qt/Roteiro.hpp"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace OryUtils {
namespace {

QRect DeRetangulo(const TRetangulo& r) { return {r.Left, r.Top, r.Width, r.Height}; }

TEST_F(TTesteQt, RealizaCadaControleNoLugarDoModelo) {
    TFormularioCompleto f;
    f.Nao.SetVisivel(false);
    f.Memorando.SetHabilitado(false);
    Responder(f, [&] {
        const QDialog& janela = *BuscarDialogo();
        EXPECT_EQ(janela.windowTitle(), "Confirmação");
        EXPECT_EQ(janela.size(), QSize(420, 330));
        const auto filhos = janela.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        ASSERT_EQ(filhos.size(), static_cast<qsizetype>(f.GetControles().size()));
        for (qsizetype i = 0; i < filhos.size(); ++i) {
            const auto& controle = *f.GetControles()[static_cast<std::size_t>(i)];
            EXPECT_EQ(filhos[i]->geometry(), DeRetangulo(controle.GetRetangulo())) << i;
            EXPECT_EQ(filhos[i]->isVisible(), controle.GetVisivel()) << i;
            EXPECT_EQ(filhos[i]->isEnabled(), controle.GetHabilitado()) << i;
        }
        EXPECT_EQ(BuscarFilho<QLabel>(0)->pixmap().size(), QSize(32, 32));
        EXPECT_EQ(BuscarFilho<QLabel>(1)->text(), "Gravar & sair?\nHá alterações.");
        EXPECT_TRUE(BuscarFilho<QPushButton>(0)->isDefault());
        EXPECT_FALSE(BuscarFilho<QPushButton>(2)->isDefault());
        const auto opcoes = janela.findChildren<QRadioButton*>();
        ASSERT_EQ(opcoes.size(), 3);
        EXPECT_EQ(opcoes[1]->text(), "Outra");
        for (const QRadioButton* opcao : opcoes)
            EXPECT_TRUE(opcao->parentWidget()->rect().contains(opcao->geometry())) << opcao->text().toStdString();
        // The host's view of the same controls.
        EXPECT_EQ(f.GetControleAtivo(), &f.Edicao);
        EXPECT_TRUE(BuscarFilho<QLineEdit>()->hasFocus());
        f.Fechar();
    });
}

TEST_F(TTesteQt, MudancasEnquantoMostrado) {
    TFormularioCompleto f;
    Responder(f, [&] {
        f.SetTitulo(u"Outro");
        f.SetTamanhoCliente(500, 400);
        f.Mensagem.SetTexto(u"Novo texto");
        f.Mensagem.SetRetangulo({1, 2, 30, 40});
        f.Sim.SetHabilitado(false);
        f.Grupo.AdicionarItem(u"Quarta");
        f.Grupo.SetIndice(3);
        f.Caixa.SetMarcada(true);
        f.Edicao.SetTexto(u"todo");
        f.Edicao.SelecionarTudo();
        EXPECT_EQ(BuscarFilho<QLineEdit>()->selectedText(), "todo");
        f.Memorando.SetSomenteLeitura(true);
        auto& ajuda = f.Adicionar<TBotao>();
        ajuda.SetTexto(u"&Ajuda");
        ajuda.SetRetangulo({300, 295, 75, 25});
        f.SetControleAtivo(&ajuda);

        EXPECT_EQ(BuscarDialogo()->windowTitle(), "Outro");
        EXPECT_EQ(BuscarDialogo()->size(), QSize(500, 400));
        EXPECT_EQ(BuscarFilho<QLabel>(1)->text(), "Novo texto");
        EXPECT_EQ(BuscarFilho<QLabel>(1)->geometry(), QRect(1, 2, 30, 40));
        EXPECT_FALSE(BuscarFilho<QPushButton>(0)->isEnabled());
        const auto opcoes = BuscarDialogo()->findChildren<QRadioButton*>();
        ASSERT_EQ(opcoes.size(), 4);
        EXPECT_TRUE(opcoes[3]->isChecked());
        f.Grupo.SetIndice(-1);
        for (const QRadioButton* opcao : opcoes) EXPECT_FALSE(opcao->isChecked());
        EXPECT_TRUE(BuscarFilho<QCheckBox>()->isChecked());
        EXPECT_TRUE(BuscarFilho<QPlainTextEdit>()->isReadOnly());
        QPushButton* novo = BuscarFilho<QPushButton>(3);
        ASSERT_NE(novo, nullptr);
        EXPECT_TRUE(novo->isVisible());
        EXPECT_EQ(novo->geometry(), QRect(300, 295, 75, 25));
        EXPECT_TRUE(novo->hasFocus());
        f.Fechar();
    });
}

struct TCasoResposta {
    const char* Porque;
    void (*Passos)();
    int Esperado;
};
const TCasoResposta CRespostas[] = {
    {"Enter of the numeric block", [] { DarTecla(Qt::Key_Enter, Qt::KeypadModifier); }, mrYes},
    {"Tab in creation order: memo, check box, options, Sim, Não",
     [] {
         for (int i = 0; i < 5; ++i) DarTecla(Qt::Key_Tab);
         DarTecla(Qt::Key_Return);
     },
     mrNo},
    {"and back from the first to the last",
     [] {
         DarTecla(Qt::Key_Backtab, Qt::ShiftModifier);
         DarTecla(Qt::Key_Return);
     },
     mrCancel},
    {"a key sent to the widget itself", [] { QTest::keyClick(BuscarFilho<QLineEdit>(), Qt::Key_Return); }, mrYes},
    {"a key sent to the window itself", [] { QTest::keyClick(BuscarDialogo(), Qt::Key_Escape); }, mrCancel},
};

TEST_F(TTesteQt, RespostasPorTeclasCliquesEFechar) {
    for (const TCasoResposta& c : CRespostas) {
        TFormularioCompleto f;
        f.Grupo.SetIndice(0);
        EXPECT_EQ(Responder(f, c.Passos), c.Esperado) << c.Porque;
        EXPECT_EQ(f.GetJanela(), nullptr) << c.Porque;
    }
    TFormulario vazio;
    EXPECT_EQ(Responder(vazio, [] { DarTecla(Qt::Key_Escape); }), mrCancel) << "Esc closes a form without buttons";
}

TEST_F(TTesteQt, EscreveDeVoltaOQueOUsuarioFez) {
    TFormularioCompleto f;
    f.Grupo.SetIndice(0);
    f.Memorando.SetTexto(u"antes");
    int mudancas = 0;
    TOuvinte<TObjeto*> mudou{[&](TObjeto* AQuem) {
        EXPECT_EQ(AQuem, &f.Edicao);
        ++mudancas;
    }};
    f.Edicao.OnMudar = mudou.GetEvento();
    Responder(f, [&] {
        QTest::keyClicks(BuscarFilho<QLineEdit>(), "Sao");
        DarTecla(Qt::Key_Tab);
        QTest::keyClicks(BuscarFilho<QPlainTextEdit>(), "a");
        DarTecla(Qt::Key_Return);  // a memo keeps its Enter
        DarTecla(Qt::Key_Tab);
        DarTecla(Qt::Key_Space);
        DarTecla(Qt::Key_Tab);
        DarTecla(Qt::Key_Down);
        EXPECT_EQ(f.GetControleAtivo(), &f.Grupo);
        DarTecla(Qt::Key_Return);
    });
    EXPECT_EQ(f.Edicao.GetTexto(), u"Sao");
    EXPECT_EQ(mudancas, 3);
    EXPECT_EQ(f.Memorando.GetTexto(), u"a\r\nantes");
    EXPECT_TRUE(f.Caixa.GetMarcada());
    EXPECT_EQ(f.Grupo.GetIndice(), 1);
}

TEST_F(TTesteQt, TeclasPassamPeloFormularioUmaVez) {
    TFormularioCompleto f;
    std::vector<int> codigos;
    TOuvinte<TObjeto*, TTecla&> teclado{[&](TObjeto*, TTecla& ATecla) {
        codigos.push_back(ATecla.Codigo + (ATecla.Ctrl ? 1000 : 0));
        ATecla.Tratada = ATecla.Codigo == 'X';
    }};
    f.OnKeyDown = teclado.GetEvento();
    Responder(f, [&] {
        for (const auto tecla : {Qt::Key_A, Qt::Key_X, Qt::Key_F5, Qt::Key_Left}) DarTecla(tecla);
        DarTecla(Qt::Key_C, Qt::ControlModifier);
        DarTecla(Qt::Key_7, Qt::KeypadModifier);
        BuscarFilho<QPushButton>(1)->setFocus();  // a button leaves these to its parents
        DarTecla(Qt::Key_F1);
        DarTecla(Qt::Key_F1);
        DarTecla(Qt::Key_Escape);
    });
    EXPECT_EQ(codigos, (std::vector<int>{'A', 'X', 116, 37, 1000 + 17, 1000 + 'C', 103, 112, 112, 27}));
    EXPECT_EQ(f.Edicao.GetTexto(), u"7a") << "X was kept from the box";
}

TEST_F(TTesteQt, RedimensionarAvisaOFormulario) {
    TFormularioCompleto f;
    f.EstiloBorda = ebRedimensionavel;
    int vezes = 0;
    TOuvinte<TObjeto*> mudou{[&](TObjeto*) { ++vezes; }};
    f.OnResize = mudou.GetEvento();
    Responder(f, [&] {
        f.SetTamanhoCliente(430, 340);
        EXPECT_EQ(vezes, 0) << "the program's own change is no news";
        BuscarDialogo()->resize(600, 350);
        QTRY_COMPARE(vezes, 1);
        f.Fechar();
    });
    EXPECT_EQ(f.GetLarguraCliente(), 600);
    EXPECT_EQ(f.GetAlturaCliente(), 350);
}

TEST_F(TTesteQt, OpcaoLongaQuebraOndeHaLinhasESenaoEncurta) {
    const std::u16string longa = u"uma opção cujo texto não cabe em uma linha desta largura";
    for (const bool alta : {true, false}) {
        TFormulario f;
        auto& grupo = f.Adicionar<TGrupoOpcoes>();
        grupo.SetQuebraLinha(true);
        grupo.AdicionarItem(longa);
        grupo.SetRetangulo({0, 0, 250, alta ? 120 : 28});
        Responder(f, [&] {
            const QRadioButton* opcao = BuscarDialogo()->findChild<QRadioButton*>();
            EXPECT_EQ(opcao->text().contains('\n'), alta);
            EXPECT_EQ(opcao->text().endsWith(QChar(0x2026)), !alta);
            EXPECT_EQ(opcao->toolTip().isEmpty(), alta);
            EXPECT_LE(opcao->sizeHint().width(), opcao->width());
            f.Fechar();
        });
    }
}

TEST_F(TTesteQt, TextosEstranhosETextoDeUmMegabyte) {
    std::u16string enorme;
    while (enorme.size() < (1u << 20)) enorme += u"Uma linha de relatório com acentuação.\r\n";
    for (const std::u16string& texto : {std::u16string(u"\xD800 solto \xDC00"), std::u16string(u"nulo\0meio", 9),
                                        std::u16string(u"\U0001F600"), std::u16string(), enorme}) {
        TFormularioCompleto f;
        f.SetTitulo(texto.substr(0, 1000));
        f.Mensagem.SetTexto(texto);
        f.Mensagem.SetQuebraLinha(true);
        f.Memorando.SetTexto(texto);
        BuscarToolkit().MedirTexto(texto, 600);
        EXPECT_EQ(Responder(f,
                            [] {
                                BuscarDialogo()->grab();
                                BuscarFilho<QPushButton>(1)->click();
                            }),
                  mrNo);
        EXPECT_EQ(f.Memorando.GetTexto(), texto) << "untouched texts stay as they are";
    }
}

}  // namespace
}  // namespace OryUtils
