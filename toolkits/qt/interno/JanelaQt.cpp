#include "toolkits/qt/interno/JanelaQt.hpp"

#include "oryutils/forms/NomeFalado.hpp"

#include "toolkits/qt/interno/AcessoQt.hpp"
#include "toolkits/qt/interno/AplicacaoQt.hpp"
#include "toolkits/qt/interno/DonaQt.hpp"
#include "toolkits/qt/interno/EncaixeQt.hpp"
#include "toolkits/qt/interno/GrupoOpcoesQt.hpp"
#include "toolkits/qt/interno/GuardaQt.hpp"
#include "toolkits/qt/interno/ListaEscolhaQt.hpp"
#include "toolkits/qt/interno/TextoQt.hpp"

#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace OryUtils {
namespace {

constexpr int CMaximoDaBarra = 1000;

QRect DeRetangulo(const TRetangulo& ARetangulo) {
    return {ARetangulo.Left, ARetangulo.Top, ARetangulo.Width, ARetangulo.Height};
}

QStyle::StandardPixmap BuscarIcone(int AId) {
    switch (AId) {
        case 32513:
            return QStyle::SP_MessageBoxCritical;
        case 32514:
            return QStyle::SP_MessageBoxQuestion;
        case 32515:
            return QStyle::SP_MessageBoxWarning;
        default:
            return QStyle::SP_MessageBoxInformation;
    }
}

// The control's Tipo tells its class, so the casts are safe.
template <typename T>
T& Como(TControleFormulario& AControle) {
    return static_cast<T&>(AControle);
}

}  // namespace

TJanelaQt::TJanelaQt(TFormulario& AFormulario)
    : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint |
                           (EstahNaFrenteQt() ? Qt::WindowStaysOnTopHint : Qt::WindowFlags())),
      FFormulario(AFormulario) {
    DeclararAlertas();
    // A dialog that is the last window must not end the host's application.
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(ParaQt(AFormulario.GetTitulo()));
    for (const auto& controle : AFormulario.GetControles()) Realizar(*controle);
    OrdenarTabulacao();
    AplicarTamanho();
    installEventFilter(this);
    AFormulario.SetJanela(this);
}

TJanelaQt::~TJanelaQt() {
    GravarMemorandos();
    FFormulario.SetJanela(nullptr);
    FControles.clear();  // what the widgets still tell while they go has no listener
}

void TJanelaQt::ResultadoMudou() {
    if (FFormulario.GetModalResult() != mrNone) Acordar();
}

void TJanelaQt::Mudou(TControleFormulario& AControle, TMudanca AMudanca) {
    QWidget* widget = Buscar(AControle);
    if (!widget) {
        Realizar(AControle);
        OrdenarTabulacao();
        return;
    }
    const bool legenda = AControle.GetTipo() == tcBotao || AControle.GetTipo() == tcCaixaChecagem;
    if (AMudanca == mdPosicao) widget->setGeometry(DeRetangulo(AControle.GetRetangulo()));
    if (AMudanca == mdTexto || (AMudanca == mdPosicao && legenda)) AplicarTexto(AControle, *widget);
    if (AMudanca == mdFoco) return Focar(AControle);
    if (AMudanca == mdItens && AControle.GetTipo() == tcListaEscolha)
        static_cast<TListaEscolhaQt*>(widget)->MostrarItens(Como<TListaEscolha>(AControle));
    Aplicar(AControle, *widget);
    if (AMudanca == mdItens) OrdenarTabulacao();
    if (AMudanca == mdSelecao && AControle.GetTipo() == tcCaixaEdicao) static_cast<QLineEdit*>(widget)->selectAll();
}

void TJanelaQt::MudouFormulario(TMudanca AMudanca) {
    if (AMudanca == mdTexto) setWindowTitle(ParaQt(FFormulario.GetTitulo()));
    if (AMudanca == mdPosicao) AplicarTamanho();
    if (AMudanca == mdItens) OrdenarTabulacao();
}

QWidget* TJanelaQt::Buscar(const TControleFormulario& AControle) const {
    const auto achado = FWidgets.find(&AControle);
    return achado == FWidgets.end() ? nullptr : achado->second;
}

void TJanelaQt::Realizar(TControleFormulario& AControle) {
    QWidget* widget = Criar(AControle);
    FWidgets.emplace(&AControle, widget);
    Vigiar(*widget, AControle);
    Aplicar(AControle, *widget);
    AplicarTexto(AControle, *widget);
    if (AControle.GetTipo() == tcCaixaEdicao && Como<TCaixaEdicao>(AControle).GetSelecionarTudo())
        static_cast<QLineEdit*>(widget)->selectAll();
}

QWidget* TJanelaQt::Criar(TControleFormulario& AControle) {
    switch (AControle.GetTipo()) {
        case tcRotulo: {
            auto* rotulo = new QLabel(this);
            rotulo->setTextFormat(Qt::PlainText);
            rotulo->setAlignment(Qt::AlignLeft | Qt::AlignTop);
            rotulo->setTextInteractionFlags(Qt::TextSelectableByMouse);
            rotulo->setFocusPolicy(Qt::NoFocus);  // who selects a word leaves no box by that
            return rotulo;
        }
        case tcIcone:
            return new QLabel(this);
        case tcBotao: {
            auto* botao = new QPushButton(this);
            botao->setAutoDefault(false);
            connect(botao, &QPushButton::clicked, this,
                    [this, &AControle] { Avisar([&] { Como<TBotao>(AControle).Clicar(); }); });
            return botao;
        }
        case tcGrupoOpcoes:
            return new TGrupoOpcoesQt(
                this, [&AControle](int AIndice) { Como<TGrupoOpcoes>(AControle).AceitarIndice(AIndice); });
        case tcCaixaChecagem: {
            auto* caixa = new QCheckBox(this);
            connect(caixa, &QCheckBox::toggled, this,
                    [&AControle](bool AMarcada) { Como<TCaixaChecagem>(AControle).AceitarMarcada(AMarcada); });
            return caixa;
        }
        case tcCaixaEdicao:
            return CriarCaixa(Como<TCaixaEdicao>(AControle));
        case tcListaEscolha: {
            auto& modelo = Como<TListaEscolha>(AControle);
            auto* lista = new TListaEscolhaQt(this, modelo.GetVarios(), [this, &modelo](std::vector<int> AEscolhidos) {
                modelo.AceitarEscolhidos(std::move(AEscolhidos));
                Avisar([&] { modelo.OnEscolher(&modelo); });
            });
            connect(lista, &QListWidget::itemDoubleClicked, this,
                    [this, &modelo] { Avisar([&] { modelo.OnDuploClique(&modelo); }); });
            lista->MostrarItens(modelo);
            return lista;
        }
        case tcProgresso: {
            auto* barra = new QProgressBar(this);
            barra->setTextVisible(false);
            return barra;
        }
        case tcMemorando:
            break;
    }
    auto* memorando = new QPlainTextEdit(this);
    memorando->setTabChangesFocus(true);
    memorando->viewport()->installEventFilter(this);  // where the mouse presses
    memorando->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    memorando->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // lines wrap
    return memorando;
}

QWidget* TJanelaQt::CriarCaixa(TCaixaEdicao& AModelo) {
    auto* caixa = new QLineEdit(this);
    if (AModelo.GetSenha()) caixa->setEchoMode(QLineEdit::Password);
    const auto aceitar = [this, &AModelo](const QString& ATexto) {
        AModelo.AceitarTexto(DeQt(ATexto));
        Avisar([&] { AModelo.OnMudar(&AModelo); });
    };
    if (!AModelo.GetCampo()) {
        connect(caixa, &QLineEdit::textEdited, this, aceitar);
        return caixa;
    }
    // A program that carries the library statically has formats of its own.
    if (&FormatSettings() != &AModelo.GetFormatos()) DefinirFormatSettings(AModelo.GetFormatos());
    FEditores.push_back(std::make_unique<TEdicaoMascaradaQt>(caixa, *AModelo.GetCampo()));
    connect(caixa, &QLineEdit::textChanged, this, aceitar);
    return caixa;
}

// Keys and focus of a control pass through eventFilter.
void TJanelaQt::Vigiar(QWidget& AWidget, TControleFormulario& AControle) {
    FControles.emplace(&AWidget, &AControle);
    AWidget.installEventFilter(this);
}

void TJanelaQt::Aplicar(TControleFormulario& AControle, QWidget& AWidget) {
    AWidget.setAccessibleName(ParaQt(BuscarNomeFalado(AControle)));
    AWidget.setGeometry(DeRetangulo(AControle.GetRetangulo()));
    AWidget.setEnabled(AControle.GetHabilitado());
    AWidget.setVisible(AControle.GetVisivel());
    switch (AControle.GetTipo()) {
        case tcRotulo:
            static_cast<QLabel&>(AWidget).setWordWrap(Como<TRotulo>(AControle).GetQuebraLinha());
            break;
        case tcIcone: {
            const int id = Como<TIcone>(AControle).GetIdIcone();
            const QSize tamanho = AWidget.size();
            static_cast<QLabel&>(AWidget).setPixmap(
                id == 0 ? QPixmap() : style()->standardIcon(BuscarIcone(id), nullptr, this).pixmap(tamanho));
            break;
        }
        case tcBotao:
            AtualizarPadrao();
            break;
        case tcGrupoOpcoes: {
            auto& modelo = Como<TGrupoOpcoes>(AControle);
            auto& grupo = static_cast<TGrupoOpcoesQt&>(AWidget);
            grupo.SetQuebraLinha(modelo.GetQuebraLinha());
            for (QRadioButton* novo : grupo.CompletarItens(modelo.GetItens())) Vigiar(*novo, AControle);
            grupo.Escolher(modelo.GetIndice());
            break;
        }
        case tcProgresso: {
            // Between 0 and 0 Qt shows that the work goes on.
            const double percentual = Como<TProgresso>(AControle).GetPercentual();
            auto& barra = static_cast<QProgressBar&>(AWidget);
            barra.setRange(0, percentual < 0 ? 0 : CMaximoDaBarra);
            barra.setValue(percentual < 0 ? -1 : static_cast<int>(percentual * CMaximoDaBarra / 100));
            break;
        }
        case tcCaixaChecagem:
            static_cast<QCheckBox&>(AWidget).setChecked(Como<TCaixaChecagem>(AControle).GetMarcada());
            break;
        case tcCaixaEdicao:
            break;
        case tcListaEscolha:
            static_cast<TListaEscolhaQt&>(AWidget).MostrarEscolhidos(Como<TListaEscolha>(AControle));
            break;
        case tcMemorando:
            static_cast<QPlainTextEdit&>(AWidget).setReadOnly(Como<TMemorando>(AControle).GetSomenteLeitura());
            break;
    }
}

void TJanelaQt::AplicarTexto(const TControleFormulario& AControle, QWidget& AWidget) {
    const bool botao = AControle.GetTipo() == tcBotao;
    const QString texto = ParaQt(botao ? static_cast<const TBotao&>(AControle).GetLegenda() : AControle.GetTexto());
    switch (AControle.GetTipo()) {
        case tcRotulo:
            static_cast<QLabel&>(AWidget).setText(texto);
            break;
        case tcBotao:
            EncaixarTexto(static_cast<QPushButton&>(AWidget), texto, false);
            break;
        case tcCaixaChecagem:
            EncaixarTexto(static_cast<QCheckBox&>(AWidget), texto, true);
            break;
        case tcGrupoOpcoes:
            static_cast<QGroupBox&>(AWidget).setTitle(texto);
            break;
        case tcCaixaEdicao:
            static_cast<QLineEdit&>(AWidget).setText(texto);
            break;
        case tcMemorando: {
            auto& memorando = static_cast<QPlainTextEdit&>(AWidget);
            memorando.setPlainText(texto);
            memorando.document()->setModified(false);
            break;
        }
        case tcIcone:
        case tcListaEscolha:
            break;
        case tcProgresso:
            AWidget.setAccessibleName(ParaQt(BuscarNomeFalado(AControle)));
            break;
    }
}

void TJanelaQt::OrdenarTabulacao() {
    QWidget* anterior = nullptr;
    const auto encadear = [&](QWidget* AWidget) {
        if (anterior) setTabOrder(anterior, AWidget);
        anterior = AWidget;
    };
    for (const auto& controle : FFormulario.GetControles()) {
        QWidget* widget = Buscar(*controle);
        if (controle->GetTipo() == tcGrupoOpcoes) {
            for (QRadioButton* botao : static_cast<TGrupoOpcoesQt*>(widget)->GetBotoes()) encadear(botao);
        } else if (widget && widget->focusPolicy() != Qt::NoFocus) {
            encadear(widget);
        }
    }
}

void TJanelaQt::Focar(const TControleFormulario& AControle) {
    QWidget* widget = Buscar(AControle);
    if (widget && AControle.GetTipo() == tcGrupoOpcoes) widget = static_cast<TGrupoOpcoesQt*>(widget)->GetBotaoDeFoco();
    if (widget && AControle.PodeReceberFoco()) widget->setFocus(Qt::OtherFocusReason);
}

void TJanelaQt::FocarInicial() {
    TControleFormulario* ativo = FFormulario.GetControleAtivo();
    if (!ativo || !ativo->PodeReceberFoco()) {
        ativo = nullptr;
        for (const auto& controle : FFormulario.GetControles())
            if (!ativo && controle->PodeReceberFoco()) ativo = controle.get();
    }
    if (!ativo) return;
    FFormulario.AceitarControleAtivo(ativo);
    Focar(*ativo);
    AtualizarPadrao();
}

// The button that Enter presses is drawn as such: the focused one, else the form's default.
void TJanelaQt::AtualizarPadrao() {
    const auto botoes = FFormulario.GetBotoes();
    const auto focado = std::ranges::find(botoes, FFormulario.GetControleAtivo());
    const auto pressionado = focado != botoes.end() ? focado : std::ranges::find_if(botoes, &TBotao::GetPadrao);
    for (auto botao = botoes.begin(); botao != botoes.end(); ++botao)
        if (QWidget* widget = Buscar(**botao)) static_cast<QPushButton*>(widget)->setDefault(botao == pressionado);
}

void TJanelaQt::GravarMemorandos() {
    for (const auto& controle : FFormulario.GetControles()) {
        if (controle->GetTipo() != tcMemorando) continue;
        auto* memorando = static_cast<QPlainTextEdit*>(Buscar(*controle));
        if (!memorando || !memorando->document()->isModified()) continue;
        controle->AceitarTexto(DeLinhasQt(memorando->toPlainText()));
        memorando->document()->setModified(false);
    }
}

// The focus has left these boxes. Told once the change of focus is complete, since a handler may move the focus again
// or show a message; but always before whatever the user did next.
bool TJanelaQt::AvisarSaidas() {
    GravarMemorandos();
    const bool antes = std::exchange(FAvisandoSaidas, true);
    bool todas = true;
    for (TCaixaEdicao* caixa : std::exchange(FSaidas, {}))
        todas = todas && TGuardaQt::Executar([&] { caixa->OnSair(caixa); });
    FAvisandoSaidas = antes;
    return todas;
}

void TJanelaQt::Avisar(const std::function<void()>& AAcao) {
    // A box that refuses to be left (EAbort) stops the click that left it.
    if (AvisarSaidas()) TGuardaQt::Executar(AAcao);
}

void TJanelaQt::closeEvent(QCloseEvent* AEvento) {
    AEvento->ignore();  // the loop hides the window, once the form agrees
    FFormulario.Fechar();
}

void TJanelaQt::done(int) { FFormulario.Fechar(); }

void TJanelaQt::resizeEvent(QResizeEvent* AEvento) {
    QDialog::resizeEvent(AEvento);
    if (isVisible()) Avisar([this] { FFormulario.AoRedimensionar(width(), height()); });
}

// Enter and Esc have been through the form's own rules; the dialog's would answer them a second time.
void TJanelaQt::keyPressEvent(QKeyEvent* AEvento) { AEvento->ignore(); }

bool TJanelaQt::eventFilter(QObject* AObjeto, QEvent* AEvento) {
    const auto achado = FControles.find(AObjeto);
    TControleFormulario* controle = achado == FControles.end() ? nullptr : achado->second;
    switch (AEvento->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::NonClientAreaMouseButtonPress:
        case QEvent::Wheel:
            FFormulario.AoIntervir();
            break;
        case QEvent::ShortcutOverride:
        case QEvent::KeyRelease:
            FTeclaTratada = nullptr;
            break;
        case QEvent::KeyPress:
            return TratarTeclaQt(static_cast<QKeyEvent&>(*AEvento));
        case QEvent::FocusIn:
            if (!controle) break;
            FFormulario.AceitarControleAtivo(controle);
            AtualizarPadrao();
            break;
        case QEvent::FocusOut: {
            // A window or a menu that comes to the front takes nothing away from the form's own control.
            const Qt::FocusReason motivo = static_cast<QFocusEvent*>(AEvento)->reason();
            // A handler may take the focus back from a box before the user was in it: that box was not left either.
            const bool sai =
                motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason && !FAvisandoSaidas;
            if (!controle || !sai || controle->GetTipo() != tcCaixaEdicao) break;
            FSaidas.push_back(static_cast<TCaixaEdicao*>(controle));
            QMetaObject::invokeMethod(
                this, [this] { AvisarSaidas(); }, Qt::QueuedConnection);
            break;
        }
        default:
            break;
    }
    return QDialog::eventFilter(AObjeto, AEvento);
}

}  // namespace OryUtils
