#include "apps/cadastro/qt/JanelaCadastro.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/ui/UnOryUtilsDialogs.hpp"

#include "toolkits/qt/ControleQt.hpp"

#include <QComboBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace OryUtils::Cadastro {
namespace {

QString Texto(std::u16string_view ATexto) {
    return QString(reinterpret_cast<const QChar*>(ATexto.data()), static_cast<qsizetype>(ATexto.size()));
}

}  // namespace

TJanelaCadastro::TJanelaCadastro() {
    setWindowTitle(Texto(CTituloCadastro));
    auto* formulario = new QFormLayout(this);
    for (std::size_t i = 0; i < CCampos.size(); ++i) {
        const TDescricaoCampo& campo = CCampos[i];
        if (campo.Lista) {
            auto* lista = new QComboBox;
            for (const auto& uf : CUFs) lista->addItem(Texto(uf));
            lista->setCurrentIndex(-1);
            FCampos[i] = lista;
        } else {
            FCampos[i] = new QLineEdit;
        }
        const int letra = fontMetrics().averageCharWidth();
        FCampos[i]->setFixedWidth(std::max(campo.Largura * letra + 2 * letra, FCampos[i]->minimumSizeHint().width()));
        FCampos[i]->installEventFilter(this);
        formulario->addRow(Texto(campo.Caption), FCampos[i]);
        if (i == caValor) {
            FPorExtenso = new QLabel;
            FPorExtenso->setWordWrap(true);
            FPorExtenso->setMinimumHeight(2 * fontMetrics().lineSpacing());
            FPorExtenso->setAlignment(Qt::AlignTop);
            formulario->addRow(QString(), FPorExtenso);
            connect(static_cast<QLineEdit*>(FCampos[i]), &QLineEdit::textChanged, this, [this](const QString& AValor) {
                FPorExtenso->setText(Texto(EscreverPorExtenso(AValor.toStdU16String())));
            });
        }
    }
    auto* salvar = new QPushButton(Texto(CCaptionSalvar));
    FFechar = new QPushButton(Texto(CCaptionFechar));
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(salvar);
    botoes->addWidget(FFechar);
    formulario->addRow(botoes);
    connect(salvar, &QPushButton::clicked, this, [this] { AoSalvar(); });
    connect(static_cast<QPushButton*>(FFechar), &QPushButton::clicked, this, &QWidget::close);
}

// The focus that a warning takes away, and gives back, is not an exit.
bool TJanelaCadastro::eventFilter(QObject* AObjeto, QEvent* AEvento) {
    const auto campo = std::find(FCampos.begin(), FCampos.end(), AObjeto);
    if (campo != FCampos.end() && AEvento->type() == QEvent::FocusOut && !FValidando) {
        const Qt::FocusReason motivo = static_cast<QFocusEvent*>(AEvento)->reason();
        if (motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason)
            // The focus is still moving: the check waits for its own event.
            QMetaObject::invokeMethod(
                this, [this, indice = static_cast<std::size_t>(campo - FCampos.begin())] { AoSair(indice); },
                Qt::QueuedConnection);
    }
    return QWidget::eventFilter(AObjeto, AEvento);
}

TValores TJanelaCadastro::LerValores() const {
    TValores valores;
    for (std::size_t i = 0; i < valores.size(); ++i) {
        const auto* lista = qobject_cast<const QComboBox*>(FCampos[i]);
        valores[i] =
            (lista ? lista->currentText() : static_cast<const QLineEdit*>(FCampos[i])->text()).toStdU16String();
    }
    return valores;
}

// Left for another field: the value must hold. Leaving for the close button is always allowed.
void TJanelaCadastro::AoSair(std::size_t ACampo) {
    const QWidget* foco = focusWidget();
    if (FValidando || !isVisible() || foco == FCampos[ACampo] || foco == FFechar) return;
    Tratar([&] {
        TControleQt controle(FCampos[ACampo]);
        CCampos[ACampo].Validar(&controle, &controle, LerValores());
    });
}

void TJanelaCadastro::AoSalvar() {
    if (FValidando) return;
    Tratar([&] {
        std::vector<TControleQt> adaptadores(FCampos.begin(), FCampos.end());
        TControles controles{};
        for (std::size_t i = 0; i < controles.size(); ++i) controles[i] = &adaptadores[i];
        Salvar(LerValores(), controles);
    });
}

// A handler of the host: what aborts ends silently, any other error is shown.
void TJanelaCadastro::Tratar(const std::function<void()>& ATratador) {
    FValidando = true;
    try {
        ATratador();
    } catch (const EAbort&) {
        // Silent by its meaning.
    } catch (const Exception& erro) {
        GOryUtilsDialogs->Erro(erro.GetMensagem());
    }
    FValidando = false;
}

}  // namespace OryUtils::Cadastro
