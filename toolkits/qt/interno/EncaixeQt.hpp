#pragma once

#include "oryutils/forms/Controles.hpp"

#include <QAbstractButton>
#include <QSize>
#include <QString>

namespace OryUtils {

/// Size that a button, check box, option, edit box or memo needs for ATexto, as the style draws it: a check box or an
/// option wraps at ALarguraMaxima, 0 does not wrap. Invalid for any other control.
QSize MedirControleQt(TTipoControle ATipo, const QString& ATexto, int ALarguraMaxima);

/// Shows as much of ATexto as fits ABotao, in lines when AQuebra; what is shortened with "…" is told by a tool tip.
void EncaixarTexto(QAbstractButton& ABotao, const QString& ATexto, bool AQuebra);

}  // namespace OryUtils
