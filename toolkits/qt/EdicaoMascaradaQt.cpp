#include "toolkits/qt/EdicaoMascaradaQt.hpp"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>
#include <limits>
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
    constexpr int CLimiteDaQt = 32767;  // of a line edit nobody has limited: a longer text would be cut
    if (AWidget->maxLength() == CLimiteDaQt) AWidget->setMaxLength(std::numeric_limits<int>::max());
    AWidget->installEventFilter(this);
    QObject::connect(AWidget, &QLineEdit::textEdited, this, [this] { AoEditar(); });
    const auto lembrar = [this] {
        if (!FEscrevendo && FWidget) FAntes = Ler();
    };
    QObject::connect(AWidget, &QLineEdit::selectionChanged, this, lembrar);
    QObject::connect(AWidget, &QLineEdit::cursorPositionChanged, this, lembrar);
    QObject::connect(AWidget, &QLineEdit::textChanged, this, [this] { ConferirTexto(); });
    // A window that is not in front gives the focus to another box without telling this one.
    QObject::connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* AAtual) {
        if (FWidget && AAtual && AAtual != FWidget && AAtual->window() == FWidget->window()) AoSair();
    });
    if (AWidget->hasFocus() && !AWidget->isReadOnly())
        AoEntrar();
    else
        Atualizar();
}

TEdicaoMascaradaQt::~TEdicaoMascaradaQt() {
    if (FWidget) FWidget->removeEventFilter(this);
}

bool TEdicaoMascaradaQt::EhSomenteLeitura() const { return !FWidget || FWidget->isReadOnly(); }

void TEdicaoMascaradaQt::Bipar() { QApplication::beep(); }

TEdicaoMascara TEdicaoMascaradaQt::Ler() const {
    if (!FWidget) return {};
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
    FConferido = FWidget->text();
}

/// A text that came some other way than by the editor: from the program, or by a key of the line edit's own.
void TEdicaoMascaradaQt::ConferirTexto() {
    if (FEscrevendo || !FWidget || FWidget->text() == FConferido) return;
    FConferido = FWidget->text();
    AoMudarTexto();
}

/// The line edit's own menu and mouse cut, paste and delete as if there were no mask: the same is done again in it.
void TEdicaoMascaradaQt::AoEditar() {
    if (FEscrevendo || !FWidget || FWidget->isReadOnly() || !TrataTexto()) return;
    TEdicaoMascara antes = FAntes;
    const std::u16string depois = FWidget->text().toStdU16String();
    std::size_t inicio = std::min(antes.Cursor, antes.Ancora), fim = std::max(antes.Cursor, antes.Ancora);
    if (inicio == fim) {  // a word deleted: what lies between the common ends
        const auto iguais = std::ranges::mismatch(antes.Texto, depois);
        inicio = static_cast<std::size_t>(iguais.in1 - antes.Texto.begin());
        fim = antes.Texto.size();
        for (std::size_t i = depois.size(); i > inicio && fim > inicio && antes.Texto[fim - 1] == depois[i - 1]; --i)
            --fim;
    }
    const std::size_t restante = antes.Texto.size() - std::min(fim, antes.Texto.size());
    if (depois.size() < inicio + restante) return;
    const std::u16string incluido = depois.substr(inicio, depois.size() - restante - inicio);
    if (incluido.empty() && !TrataTeclas()) return;  // deleting is the same without a mask
    antes.Ancora = inicio;
    antes.Cursor = fim;
    Mostrar(antes);
    if (incluido.empty())
        AoTeclar(tmExcluir);
    else
        AoColar(incluido);
}

/// True when the key is spent.
bool TEdicaoMascaradaQt::TratarTecla(const QKeyEvent& ATecla) {
    if (ATecla.matches(QKeySequence::Undo)) {
        Desfazer();
        return true;
    }
    // A dialog closes by Esc.
    if (ATecla.key() == Qt::Key_Escape) return !qobject_cast<QDialog*>(FWidget->window()) && Desfazer();
    if (!TrataTexto()) return false;
    if (ATecla.matches(QKeySequence::Redo)) return true;
    if (ATecla.matches(QKeySequence::Paste)) {
        AoColar(QApplication::clipboard()->text().toStdU16String());
        return true;
    }
    if (ATecla.matches(QKeySequence::Cut)) {
        FWidget->copy();
        if (FWidget->hasSelectedText()) AoTeclar(tmExcluir);
        return true;
    }
    const bool comTecla =
        ATecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::ShiftModifier);
    if (!comTecla && TrataTeclas())
        if (const auto tecla = BuscarTecla(ATecla.key())) {
            AoTeclar(*tecla);
            return true;
        }
    // AltGr comes as Ctrl and Alt together.
    const bool ctrl = ATecla.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = ATecla.modifiers().testFlag(Qt::AltModifier);
    const QString texto = ATecla.text();
    if (texto.isEmpty() || texto.front() < u' ' || texto.front() == QChar(0x7F) || ctrl != alt) return false;
    const bool decimal = ATecla.modifiers().testFlag(Qt::KeypadModifier) && (texto == u"." || texto == u",");
    if (decimal)
        AoTeclarDecimal();
    else
        DigitarTudo(texto);
    return true;
}

void TEdicaoMascaradaQt::DigitarTudo(const QString& ATexto) {
    const QPointer<QObject> vivo(this);  // whoever is told of a refusal may destroy it
    for (const QChar c : ATexto)
        if (vivo) AoDigitar(c.unicode());
}

/// Text dragged from elsewhere, or moved inside the box.
void TEdicaoMascaradaQt::Soltar(QDropEvent& AEvento) {
    const TEdicaoMascara antes = Ler();
    auto posicao = static_cast<std::size_t>(FWidget->cursorPositionAt(AEvento.position().toPoint()));
    const auto [inicio, fim] = std::minmax(antes.Cursor, antes.Ancora);
    const std::u16string texto = AEvento.mimeData()->text().toStdU16String();
    if (AEvento.source() == FWidget && AEvento.dropAction() == Qt::MoveAction && inicio < fim) {
        if (posicao >= inicio && posicao <= fim) return;  // back on itself
        AoTeclar(tmExcluir);
        if (!TrataTeclas() && posicao > fim) posicao -= fim - inicio;
    }
    const std::size_t tamanho = Ler().Texto.size();
    Mostrar({Ler().Texto, std::min(posicao, tamanho), std::min(posicao, tamanho)});
    const QPointer<QObject> vivo(this);
    if (!AoColar(texto) && vivo) {
        Mostrar(antes);
        AoMudarTexto();
    }
    AEvento.acceptProposedAction();
}

/// What an input method has composed; what is still being composed stays the line edit's.
bool TEdicaoMascaradaQt::Compor(const QInputMethodEvent& AEvento) {
    if (AEvento.commitString().isEmpty() || !TrataTexto()) return false;
    QInputMethodEvent emCurso(AEvento.preeditString(), AEvento.attributes());
    FWidget->event(&emCurso);
    DigitarTudo(AEvento.commitString());
    return true;
}

bool TEdicaoMascaradaQt::eventFilter(QObject* AObjeto, QEvent* AEvento) {
    // A widget that is being destroyed still sends events, but is no QLineEdit any more.
    if (!qobject_cast<QLineEdit*>(AObjeto) || AObjeto != FWidget) return QObject::eventFilter(AObjeto, AEvento);
    if (AEvento->type() == QEvent::FocusOut) {
        const auto motivo = static_cast<QFocusEvent*>(AEvento)->reason();
        if (motivo == Qt::ActiveWindowFocusReason || motivo == Qt::MenuBarFocusReason)
            AoSuspender();
        else if (motivo != Qt::PopupFocusReason)
            AoSair();
        return false;
    }
    if (FWidget->isReadOnly()) return false;
    switch (AEvento->type()) {
        case QEvent::ReadOnlyChange:
            if (FWidget->hasFocus()) AoEntrar();
            return false;
        case QEvent::ShortcutOverride:
            // Esc and Ctrl+Z reach the box before a shortcut of the window does.
            if (const auto& tecla = *static_cast<QKeyEvent*>(AEvento);
                EstahModificado() && (tecla.matches(QKeySequence::Undo) || tecla.key() == Qt::Key_Escape))
                AEvento->accept();
            return false;
        case QEvent::KeyPress:
            return TratarTecla(*static_cast<QKeyEvent*>(AEvento));
        case QEvent::InputMethod:
            return Compor(*static_cast<QInputMethodEvent*>(AEvento));
        case QEvent::Drop:
            if (!TrataTexto()) return false;
            Soltar(*static_cast<QDropEvent*>(AEvento));
            return true;
        case QEvent::FocusIn:
            AoEntrar();
            return false;
        default:
            return false;
    }
}

}  // namespace OryUtils
