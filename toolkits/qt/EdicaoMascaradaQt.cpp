#include "toolkits/qt/EdicaoMascaradaQt.hpp"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>
#include <optional>

namespace OryUtils {
namespace {

QString ParaQString(std::u16string_view ATexto) {
    return QString::fromUtf16(ATexto.data(), static_cast<qsizetype>(ATexto.size()));
}

std::optional<TTeclaMascara> BuscarTecla(int ACodigo) {
    switch (ACodigo) {
        case Qt::Key_Left:
            return tmEsquerda;
        case Qt::Key_Right:
            return tmDireita;
        case Qt::Key_Home:
            return tmInicio;
        case Qt::Key_End:
            return tmFim;
        case Qt::Key_Backspace:
            return tmApagar;
        case Qt::Key_Delete:
            return tmExcluir;
        default:
            return std::nullopt;
    }
}

}  // namespace

TEdicaoMascaradaQt::TEdicaoMascaradaQt(QLineEdit* AWidget, TField& ACampo) : TEditorDeCampo(ACampo), FWidget(AWidget) {
    AWidget->installEventFilter(this);
    QObject::connect(AWidget, &QLineEdit::textEdited, this, [this] { AoEditar(); });
    const auto lembrar = [this] {
        if (!FEscrevendo && FWidget) FAntes = Ler();
    };
    QObject::connect(AWidget, &QLineEdit::selectionChanged, this, lembrar);
    QObject::connect(AWidget, &QLineEdit::cursorPositionChanged, this, lembrar);
    // A text that came some other way, as from the program, is brought into the mask.
    QObject::connect(AWidget, &QLineEdit::textChanged, this, [this] {
        if (!FEscrevendo && FWidget) Mostrar(Ajustar(Ler()));
    });
    if (AWidget->hasFocus())
        AoEntrar();
    else
        Atualizar();
}

TEdicaoMascaradaQt::~TEdicaoMascaradaQt() {
    if (FWidget) FWidget->removeEventFilter(this);
}

void TEdicaoMascaradaQt::Gravar() {
    if (FWidget) AoGravar(Ler().Texto);
}

TEdicaoMascara TEdicaoMascaradaQt::Ler() const {
    const auto cursor = static_cast<std::size_t>(FWidget->cursorPosition());
    TEdicaoMascara edicao{FWidget->text().toStdU16String(), cursor, cursor};
    if (FWidget->hasSelectedText()) {
        edicao.Ancora = static_cast<std::size_t>(FWidget->selectionStart());
        if (edicao.Ancora == cursor) edicao.Ancora = static_cast<std::size_t>(FWidget->selectionEnd());
    }
    return edicao;
}

void TEdicaoMascaradaQt::Mostrar(const TEdicaoMascara& AEdicao) {
    if (!FWidget) return;
    FEscrevendo = true;
    const QString texto = ParaQString(AEdicao.Texto);
    if (FWidget->text() != texto) FWidget->setText(texto);
    const auto cursor = static_cast<int>(AEdicao.Cursor);
    const auto ancora = static_cast<int>(AEdicao.Ancora);
    if (cursor == ancora) {
        FWidget->deselect();
        FWidget->setCursorPosition(cursor);
    } else {
        FWidget->setSelection(ancora, cursor - ancora);
    }
    FEscrevendo = false;
    FAntes = Ler();
}

/// The widget's own menu cuts, pastes and deletes as if there were no mask: the same is done again in the mask.
void TEdicaoMascaradaQt::AoEditar() {
    if (FEscrevendo || !FWidget || FWidget->isReadOnly()) return;
    const TEdicaoMascara antes = FAntes;
    const auto [inicio, fim] = std::minmax(antes.Cursor, antes.Ancora);
    const std::u16string depois = FWidget->text().toStdU16String();
    const std::size_t restante = antes.Texto.size() - std::min(fim, antes.Texto.size());
    const bool trocouSelecao = depois.size() >= inicio + restante &&
                               depois.starts_with(antes.Texto.substr(0, inicio)) &&
                               depois.ends_with(antes.Texto.substr(antes.Texto.size() - restante));
    if (!trocouSelecao) return;  // undone, or moved by the mouse: fitted to the mask as any other text
    const std::u16string incluido = depois.substr(inicio, depois.size() - restante - inicio);
    Mostrar(incluido.empty() ? Teclar(antes, tmExcluir) : Colar(antes, incluido));
}

/// True when the key is spent.
bool TEdicaoMascaradaQt::TratarTecla(const QKeyEvent& ATecla) {
    if (ATecla.matches(QKeySequence::Undo) || ATecla.matches(QKeySequence::Redo)) return true;
    if (ATecla.matches(QKeySequence::Paste)) {
        Mostrar(Colar(Ler(), QApplication::clipboard()->text().toStdU16String()));
        return true;
    }
    if (ATecla.matches(QKeySequence::Cut)) {
        FWidget->copy();
        if (FWidget->hasSelectedText()) Mostrar(Teclar(Ler(), tmExcluir));
        return true;
    }
    if (!(ATecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::ShiftModifier)))
        if (const auto tecla = BuscarTecla(ATecla.key())) {
            Mostrar(Teclar(Ler(), *tecla));
            return true;
        }
    // AltGr comes as Ctrl and Alt together.
    const bool ctrl = ATecla.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = ATecla.modifiers().testFlag(Qt::AltModifier);
    const QString texto = ATecla.text();
    if (texto.isEmpty() || texto.front() < u' ' || texto.front() == QChar(0x7F) || ctrl != alt) return false;
    for (const QChar c : texto) Mostrar(Digitar(Ler(), c.unicode()));
    return true;
}

bool TEdicaoMascaradaQt::eventFilter(QObject* AObjeto, QEvent* AEvento) {
    // A widget that is being destroyed still sends events, but is no QLineEdit any more.
    if (!qobject_cast<QLineEdit*>(AObjeto) || AObjeto != FWidget || FWidget->isReadOnly())
        return QObject::eventFilter(AObjeto, AEvento);
    switch (AEvento->type()) {
        case QEvent::KeyPress:
            return TratarTecla(*static_cast<QKeyEvent*>(AEvento));
        case QEvent::InputMethod: {
            const QString texto = static_cast<QInputMethodEvent*>(AEvento)->commitString();
            if (texto.isEmpty()) return false;
            Mostrar(Colar(Ler(), texto.toStdU16String()));
            return true;
        }
        case QEvent::Drop: {
            Mostrar(Colar(Ler(), static_cast<QDropEvent*>(AEvento)->mimeData()->text().toStdU16String()));
            return true;
        }
        case QEvent::FocusIn:
            AoEntrar();
            return false;
        case QEvent::FocusOut: {
            const auto motivo = static_cast<QFocusEvent*>(AEvento)->reason();
            if (motivo != Qt::PopupFocusReason) AoSair(Ler().Texto);
            return false;
        }
        default:
            return false;
    }
}

}  // namespace OryUtils
