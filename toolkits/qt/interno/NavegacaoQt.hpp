#pragma once

#include "oryutils/forms/Controles.hpp"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QList>

namespace OryUtils {

/// What can be pressed of a control that AWidget realises: the button itself, the options of a group, else nothing.
QList<QAbstractButton*> BuscarBotoesDe(const TControleFormulario& AControle, QWidget* AWidget);

/// A letter alone presses what Alt and the letter would, as on Windows: the next after the focused one that marks it.
/// False when the key is none, or no button marks it.
bool PressionarLetra(const QList<QAbstractButton*>& ABotoes, const QKeyEvent& ATecla);

/// An arrow goes from the focused one to the next or the previous of ABotoes, from the last to the first; an option
/// that it reaches is chosen. False when the key is no arrow.
bool AndarComSetas(const QList<QAbstractButton*>& ABotoes, const QKeyEvent& ATecla);

/// Whether Ctrl+C would copy a part of a text: of the focused box or memo, or of a label.
bool HaTextoSelecionado(const QWidget& AJanela);

/// Labels take no focus: Ctrl+C copies what is selected in one while the focused control has no selection of its own.
bool CopiarDoRotulo(const QWidget& AJanela, const QKeyEvent& ATecla);

}  // namespace OryUtils
