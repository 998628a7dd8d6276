#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <QRect>
#include <QWindow>

#include <cstdint>
#include <memory>
#include <optional>

namespace OryUtils {

/// A window of any program, known by its number, that owns dialogs.
struct TDonaQt {
    std::unique_ptr<QWindow> Janela;
    QRect Lugar;  ///< on the screen
};

/// As TToolkit::SetJanelaDona; windows have numbers on X11 alone.
TAtendimento DefinirDonaQt(std::uintptr_t AJanela);
/// That window, to be kept as long as something belongs to it; none also when it has gone meanwhile.
std::optional<TDonaQt> BuscarDonaQt();

/// As TToolkit::SetNaFrente; Wayland lets no program decide that.
TAtendimento DefinirNaFrenteQt(bool ANaFrente);
bool EstahNaFrenteQt();

}  // namespace OryUtils
