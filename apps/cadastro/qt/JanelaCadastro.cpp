#include "apps/cadastro/qt/JanelaCadastro.hpp"

#include <QComboBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace OryUtils::Cadastro {
namespace {

QString Texto(std::u16string_view ATexto) {
    return QString(reinterpret_cast<const QChar*>(ATexto.data()), static_cast<qsizetype>(ATexto.size()));
}

}  // namespace

TJanelaCadastro::TJanelaCadastro() {
    setWindowTitle(Texto(CTituloCadastro));
    auto* formulario = new QFormLayout(this);
    formulario->setVerticalSpacing(fontMetrics().lineSpacing() / 2);
    const int entre = fontMetrics().horizontalAdvance(u'0');
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        FCaixas[i] = CriarCaixa(i);
        FControles.emplace_back(FCaixas[i]);
        auto* rotulo = new QLabel(Texto(CCampos[i].Caption));
        rotulo->setBuddy(FCaixas[i]);
        // The marked letter breaks the kerning: the text is drawn a little wider than it is measured.
        rotulo->setMinimumWidth(rotulo->sizeHint().width() + entre);
        formulario->addRow(rotulo, FCaixas[i]);
        if (i != caValor) continue;
        FPorExtenso = new QLabel;
        FPorExtenso->setWordWrap(true);
        FPorExtenso->setFixedHeight(CLinhasPorExtenso * fontMetrics().lineSpacing());
        FPorExtenso->setAlignment(Qt::AlignTop);
        formulario->addRow(QString(), FPorExtenso);
    }
    auto* salvar = new QPushButton(Texto(CCaptionSalvar));
    FFechar = new QPushButton(Texto(CCaptionFechar));
    auto* botoes = new QHBoxLayout;
    botoes->setSpacing(entre);
    botoes->addStretch();
    botoes->addWidget(salvar);
    botoes->addWidget(FFechar);
    formulario->addRow(botoes);
    connect(salvar, &QPushButton::clicked, this, [this] { AoSalvar(); });
    connect(static_cast<QPushButton*>(FFechar), &QPushButton::clicked, this, &QWidget::close);
}

QWidget* TJanelaCadastro::CriarCaixa(std::size_t ACampo) {
    const TDescricaoCampo& campo = CCampos[ACampo];
    const int letra = fontMetrics().horizontalAdvance(u'0');
    QWidget* caixa = nullptr;
    if (!campo.Opcoes.empty()) {
        auto* lista = new QComboBox(this);
        for (const auto& opcao : campo.Opcoes) lista->addItem(Texto(opcao));
        lista->setCurrentIndex(campo.OpcaoInicial);
        caixa = lista;
        caixa->setFixedWidth(std::max(caixa->sizeHint().width(), campo.Largura * letra));
    } else {
        auto* edicao = new QLineEdit(this);
        if (ACampo == caValor)
            connect(edicao, &QLineEdit::textChanged, this, [this] {
                if (FPorExtenso) FPorExtenso->setText(Texto(BuscarPorExtenso()));
            });
        if (TField* dados = GetCampoDeDados(ACampo))
            FEdicoes[ACampo] = std::make_unique<TEdicaoMascaradaQt>(edicao, *dados);
        caixa = edicao;
        caixa->setFixedWidth((campo.Largura + 2) * letra);
    }
    caixa->installEventFilter(this);
    return caixa;
}

// The focus that a warning takes away, and gives back, is not an exit.
bool TJanelaCadastro::eventFilter(QObject* AObjeto, QEvent* AEvento) {
    const auto caixa = std::ranges::find(FCaixas, AObjeto);
    if (caixa != FCaixas.end() && AEvento->type() == QEvent::FocusOut && !EstahValidando()) {
        const Qt::FocusReason motivo = static_cast<QFocusEvent*>(AEvento)->reason();
        if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason)
            // The focus is still moving: the check waits for its own event.
            QMetaObject::invokeMethod(
                this, [this, campo = static_cast<std::size_t>(caixa - FCaixas.begin())] { AoPerderFoco(campo); },
                Qt::QueuedConnection);
    }
    return QWidget::eventFilter(AObjeto, AEvento);
}

// Leaving for the close button is always allowed.
void TJanelaCadastro::AoPerderFoco(std::size_t ACampo) {
    const QWidget* foco = focusWidget();
    if (isVisible() && foco != FFechar)
        AoSair(ACampo, static_cast<std::size_t>(std::ranges::find(FCaixas, foco) - FCaixas.begin()));
}

std::u16string TJanelaCadastro::LerCaixa(std::size_t ACampo) const {
    const auto* lista = qobject_cast<const QComboBox*>(FCaixas[ACampo]);
    return (lista ? lista->currentText() : static_cast<const QLineEdit*>(FCaixas[ACampo])->text()).toStdU16String();
}

void TJanelaCadastro::EscreverCaixa(std::size_t ACampo, std::u16string_view ATexto) {
    if (auto* lista = qobject_cast<QComboBox*>(FCaixas[ACampo]))
        lista->setCurrentText(Texto(ATexto));
    else
        static_cast<QLineEdit*>(FCaixas[ACampo])->setText(Texto(ATexto));
}

}  // namespace OryUtils::Cadastro
