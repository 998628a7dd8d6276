// The forms as widgets: what tests for every toolkit leave out.
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/OryUtilsDialogs.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "qt/Roteiro.hpp"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

#include <random>
#include <thread>

namespace OryUtils {

std::unique_ptr<TUsuario> CriarUsuario() { return std::make_unique<TUsuarioQt>(); }

std::vector<TVisto> TUsuarioQt::Ver(const TFormulario& AFormulario) {
    const QDialog& janela = *BuscarDialogo();
    const auto lugar = [](const QRect& r) { return TRetangulo{r.x(), r.y(), r.width(), r.height()}; };
    std::vector<TVisto> vistos{{{0, 0, janela.width(), janela.height()}, janela.windowTitle().toStdU16String()}};
    const auto filhos = janela.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(filhos.size(), static_cast<qsizetype>(AFormulario.GetControles().size()));
    for (const QWidget* filho : filhos) {
        QString texto;
        TVisto& visto = vistos.emplace_back(
            TVisto{lugar(filho->geometry()), {}, filho->isVisible(), filho->isEnabled(), filho->hasFocus()});
        if (const auto* rotulo = qobject_cast<const QLabel*>(filho)) texto = rotulo->text();
        if (const auto* botao = qobject_cast<const QAbstractButton*>(filho)) {
            texto = botao->text();
            visto.Marcado = botao->isChecked();
        }
        if (const auto* caixa = qobject_cast<const QLineEdit*>(filho)) texto = caixa->text();
        if (const auto* memorando = qobject_cast<const QPlainTextEdit*>(filho)) {
            texto = memorando->toPlainText();
            visto.Marcado = memorando->isReadOnly();
        }
        if (const auto* grupo = qobject_cast<const QGroupBox*>(filho)) {
            texto = grupo->title();
            for (const QRadioButton* opcao : grupo->findChildren<QRadioButton*>()) {
                if (opcao->isChecked()) visto.Escolhida = static_cast<int>(visto.Opcoes.size());
                visto.Opcoes.push_back(lugar(QRect(opcao->mapTo(&janela, QPoint(0, 0)), opcao->size())));
                visto.TextoDasOpcoes += opcao->text().toStdU16String() + u"\n";
            }
        }
        visto.Texto = texto.toStdU16String();
    }
    return vistos;
}

TFoco TUsuarioQt::VerFoco() {
    TFoco foco;
    const QWidget* focado = BuscarDialogo()->focusWidget();
    const auto* caixa = qobject_cast<const QLineEdit*>(focado);
    const auto* memorando = qobject_cast<const QPlainTextEdit*>(focado);
    if (const auto* botao = qobject_cast<const QAbstractButton*>(focado)) {
        foco.Texto = RemoverAtalho(botao->text().toStdU16String());
        foco.Marcado = botao->isChecked();
    }
    if (caixa) foco.Texto = caixa->text().toStdU16String();
    if (const auto* lista = qobject_cast<const QListWidget*>(focado); lista && lista->currentItem()) {
        foco.Texto = lista->currentItem()->text().toStdU16String();
        foco.Marcado = lista->currentItem()->isSelected();
    }
    if (memorando) foco.Texto = memorando->toPlainText().toStdU16String();
    for (const QPushButton* botao : BuscarDialogo()->findChildren<QPushButton*>())
        if (botao->isDefault()) foco.BotaoPadrao += RemoverAtalho(botao->text().toStdU16String());
    return foco;
}

std::u16string TUsuarioQt::LerAreaDeTransferencia() { return QGuiApplication::clipboard()->text().toStdU16String(); }

namespace {

TEST_F(TTesteQt, Icone) {
    TFormularioCompleto f;
    Responder(f, [&] {
        EXPECT_EQ(BuscarFilho<QLabel>(0)->pixmap().size(), QSize(32, 32));
        f.Fechar();
    });
}

TEST_F(TTesteQt, OQueEstahSelecionadoEmUmRotuloEhCopiado) {
    Executar(*TOryUtilsDialogs().BuscarFormularioConfirmacaoCustomizado(
                 *TOryUtilsDialogs().BuscarConfiguracaoPadraoMensagem(u"Nota 1234 rejeitada")),
             {[] {
                  BuscarFilho<QLabel>(1)->setSelection(5, 4);
                  DarTecla(Qt::Key_C, Qt::ControlModifier);
              },
              [&] {
                  EXPECT_EQ(LerAreaDeTransferencia(), u"1234");
                  EXPECT_TRUE(BuscarFilho<QPushButton>()->hasFocus());
                  BuscarDialogo()->close();
              }});
}

/// What a screen reader is told of AObjeto and all that is in it: role, name, and "alert" with its description.
void Ouvir(QAccessibleInterface* AObjeto, QStringList& AOuvido) {
    if (!AObjeto || AObjeto->state().invisible) return;
    const QString nome = AObjeto->text(QAccessible::Name);
    switch (AObjeto->role()) {
        case QAccessible::AlertMessage:
            AOuvido += "alert " + nome + ": " + AObjeto->text(QAccessible::Description);
            break;
        case QAccessible::Graphic:
            AOuvido += "graphic " + nome;
            break;
        case QAccessible::StaticText:
            AOuvido += "text " + nome;
            break;
        case QAccessible::EditableText:
            AOuvido += (AObjeto->state().passwordEdit ? "password " : "edit ") + nome;
            break;
        case QAccessible::List:
            AOuvido += "list " + nome;
            break;
        case QAccessible::ListItem:
            AOuvido += (AObjeto->state().selected ? "*item " : "item ") + nome;
            break;
        case QAccessible::RadioButton:
            AOuvido += "option " + nome;
            break;
        case QAccessible::CheckBox:
            AOuvido += "check " + nome;
            break;
        case QAccessible::Button:
            AOuvido += "button " + nome;
            break;
        default:
            break;
    }
    for (int i = 0; i < AObjeto->childCount(); ++i) Ouvir(AObjeto->child(i), AOuvido);
}

struct TCasoFalado {
    void (*Mostrar)(TOryUtilsDialogs&);
    const char* Esperado;
    const char* Porque;
};
const TCasoFalado CFalados[] = {
    {[](auto& d) { d.Confirmacao(u"Excluir?", btNo); },
     "alert Confirmação: Excluir?|graphic Pergunta|text Excluir?|button Sim|button Não", "a question"},
    {[](auto& d) { d.Erro(u"Falhou."); }, "alert Erro: Falhou.|graphic Erro|text Falhou.|button OK", ""},
    {[](auto&) { OryMsg::InputBox(u"T", u"CNPJ:", u"1"); }, "text CNPJ:|edit CNPJ:|button OK|button Cancelar",
     "a box is called as the label before it"},
    {[](auto& d) {
         std::vector<std::int32_t> escolhidos{1};
         d.PedirEscolha({.Titulo = u"T", .Pergunta = u"Cidade?", .Itens = {u"Santos", u"Bauru"}}, escolhidos);
     },
     "text Cidade?|text Localizar:|edit Localizar:|text Opções: |list Opções: |item Santos|*item Bauru|button "
     "OK|button "
     "Cancelar",
     "so is a list"},
    {[](auto& d) {
         std::u16string senha;
         d.PedirSenha(u"T", u"Senha:", senha);
     },
     "text Senha:|password Senha:|button OK|button Cancelar", "a password is told to be one"},
    {[](auto&) {
         TFormulario f;
         auto& memorando = f.Adicionar<TMemorando>();
         memorando.SetNome(u"Detalhe");
         auto& grupo = f.Adicionar<TGrupoOpcoes>();
         grupo.SetRetangulo({0, 0, 120, 40});
         grupo.AdicionarItem(u"uma &opção que não cabe nesta largura");
         f.ExecutarModal();
     },
     "edit Detalhe|option uma opção que não cabe nesta largura", "an option that is cut is told whole"},
};

TEST_F(TTesteQt, LeitoresDeTelaOuvemNomesEPapeis) {
    for (const TCasoFalado& c : CFalados) {
        TOryUtilsDialogs dialogos;
        QStringList ouvido;
        QuandoMostrar([&] {
            Ouvir(QAccessible::queryAccessibleInterface(BuscarDialogo()), ouvido);
            BuscarDialogo()->close();
        });
        c.Mostrar(dialogos);
        EXPECT_EQ(ouvido.join('|').toStdString(), c.Esperado) << c.Porque;
    }
}

struct TCasoResposta {
    const char* Porque;
    void (*Passos)();
    int Esperado;
};
const TCasoResposta CRespostas[] = {
    {"Enter of the numeric block", [] { DarTecla(Qt::Key_Enter, Qt::KeypadModifier); }, mrYes},
    {"a key sent to the widget itself", [] { QTest::keyClick(BuscarFilho<QLineEdit>(), Qt::Key_Return); }, mrYes},
    {"a key sent to the window itself", [] { QTest::keyClick(BuscarDialogo(), Qt::Key_Escape); }, mrCancel},
    {"the application ends", [] { QCoreApplication::exit(1); }, mrCancel},
};

TEST_F(TTesteQt, RespostasPorOutrosCaminhos) {
    for (const TCasoResposta& c : CRespostas) {
        TFormularioCompleto f;
        EXPECT_EQ(Responder(f, c.Passos), c.Esperado) << c.Porque;
    }
}

TEST_F(TTesteQt, FimDaAplicacaoCancelaTodosOsNiveis) {
    TFormularioCompleto fora, dentro;
    int interno = 0, externo = 0;
    QTimer::singleShot(0, qApp, [&] {
        externo = Executar(fora, {[&] { interno = Executar(dentro, {[] { QCoreApplication::exit(1); }}); }});
    });
    EXPECT_EQ(QCoreApplication::exec(), 1);
    EXPECT_EQ(interno, mrCancel);
    EXPECT_EQ(externo, mrCancel);
}

TEST_F(TTesteQt, CadaTeclaPassaPeloFormularioUmaVezComOCodigoDoModelo) {
    TFormularioCompleto f;
    std::vector<int> codigos;
    TOuvinte<TObjeto*, TTecla&> teclado{[&](TObjeto*, TTecla& ATecla) { codigos.push_back(ATecla.Codigo); }};
    f.OnKeyDown = teclado.GetEvento();
    Responder(f, [&] {
        for (const auto tecla : {Qt::Key_F5, Qt::Key_Left, Qt::Key_Control}) DarTecla(tecla);
        DarTecla(Qt::Key_7, Qt::KeypadModifier);
        BuscarFilho<QPushButton>(1)->setFocus();  // a button leaves these to its parents
        DarTecla(Qt::Key_F1);
        DarTecla(Qt::Key_F1);
        DarTecla(Qt::Key_Escape);
    });
    EXPECT_EQ(codigos, (std::vector<int>{116, 37, 17, 103, 112, 112, 27}));
}

TEST_F(TTesteQt, OpcaoLongaQuebraOuEncurta) {
    for (const bool quebra : {true, false}) {
        TFormulario f;
        auto& grupo = f.Adicionar<TGrupoOpcoes>();
        grupo.SetQuebraLinha(quebra);
        grupo.AdicionarItem(u"uma opção cujo texto não cabe em uma linha desta largura");
        grupo.SetRetangulo({0, 0, 250, 28});
        Responder(f, [&] {
            const QRadioButton* opcao = BuscarDialogo()->findChild<QRadioButton*>();
            EXPECT_EQ(opcao->text().contains('\n'), quebra) << "the group scrolls";
            EXPECT_EQ(opcao->text().endsWith(QChar(0x2026)), !quebra);
            EXPECT_EQ(opcao->toolTip().isEmpty(), quebra);
            EXPECT_LE(opcao->sizeHint().width(), opcao->width());
            f.Fechar();
        });
    }
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

TEST_F(TTesteQt, OutraThreadRecebeErroDocumentado) {
    std::thread([&] {
        TToolkit& toolkit = BuscarToolkit();
        TFormulario f;
        EXPECT_THROW(toolkit.ExecutarModal(f), Exception);
        EXPECT_THROW(toolkit.MedirTexto(u"a", 0), Exception);
        EXPECT_THROW(toolkit.LigarTemporizador(1, [] {}), Exception);
        EXPECT_THROW(toolkit.EscolherPasta(u"", u""), Exception);
        EXPECT_NO_THROW(toolkit.ProcessarMensagens());
    }).join();
}

TEST_F(TTesteQt, MedidaDeTextoBastaAoRotulo) {
    TToolkit& toolkit = BuscarToolkit();
    EXPECT_EQ(toolkit.MedirTexto(u"", 100), TTamanho{});
    const unsigned semente = std::random_device{}();
    std::mt19937 sorteio(semente);
    const char16_t letras[] = u"aeimrst ÁçãWg., -\n&";
    for (int caso = 0; caso < 300; ++caso) {
        std::u16string texto(1 + sorteio() % 200, u' ');
        for (char16_t& letra : texto) letra = letras[sorteio() % (std::size(letras) - 1)];
        const int maxima = caso % 3 == 0 ? 0 : 60 + static_cast<int>(sorteio() % 300);
        const TTamanho medida = toolkit.MedirTexto(texto, maxima);
        QLabel rotulo;
        rotulo.setTextFormat(Qt::PlainText);
        rotulo.setWordWrap(maxima > 0);
        rotulo.setText(QString::fromStdU16String(texto));
        if (maxima > 0)
            EXPECT_LE(rotulo.heightForWidth(medida.Largura), medida.Altura) << "seed " << semente << " case " << caso;
        else
            EXPECT_LE(rotulo.sizeHint().width(), medida.Largura + 1) << "seed " << semente << " case " << caso;
    }
}

TEST_F(TTesteQt, UmaJanelaPedidaEhADonaEOFormularioFicaNaFrente) {
    TToolkit& toolkit = BuscarToolkit();
    const bool x11 = QGuiApplication::platformName() == QLatin1String("xcb");
    EXPECT_EQ(toolkit.SetJanelaDona(0x12345), x11 ? atNaoExiste : atNaoPermite);
    QWindow dona;
    dona.create();
    for (const bool pedida : {true, false}) {
        EXPECT_EQ(toolkit.SetJanelaDona(pedida ? dona.winId() : 0), pedida && !x11 ? atNaoPermite : atFeito);
        EXPECT_EQ(toolkit.SetNaFrente(pedida), atFeito);
        TFormularioCompleto f;
        const auto conferir = [&] {
            const QWindow* pai = BuscarDialogo()->windowHandle()->transientParent();
            EXPECT_EQ(pai && pai->winId() == dona.winId(), pedida && x11);
            EXPECT_EQ(BuscarDialogo()->windowFlags().testFlag(Qt::WindowStaysOnTopHint), pedida);
            Clicar(u"&Sim");
        };
        EXPECT_EQ(Executar(f, {conferir}), mrYes);
    }
}

}  // namespace
}  // namespace OryUtils
