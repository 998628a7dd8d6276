#pragma once

#include <QApplication>

namespace OryUtils {

/// The process's QApplication: the host's, else one of the toolkit's own, created now. Raises Exception when the host
/// has an application object without a graphical interface.
QApplication& ExigirAplicacao();

/// True when ExigirAplicacao would succeed: with Qt, an application object that finds no usable platform plug-in ends
/// the whole process, so this looks first. That the display answers is for the caller to know.
bool PodeCriarAplicacao();

/// The screen on which the next form opens: the one of the window in front, else the main one; null where there is
/// none.
QScreen* BuscarTelaQt();

/// The application's thread; before there is an application, the thread that first asked.
bool EhThreadDaAplicacao();

}  // namespace OryUtils
