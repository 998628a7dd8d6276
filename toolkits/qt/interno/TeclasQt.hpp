#pragma once

#include "oryutils/forms/Formulario.hpp"

#include <QKeyEvent>

namespace OryUtils {

/// The key of a Qt event, numbered as on Windows; Codigo 0 when it has no such number.
TTecla DeEventoQt(const QKeyEvent& AEvento) noexcept;

}  // namespace OryUtils
