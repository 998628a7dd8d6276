#pragma once

#include "toolkits/qt/interno/JanelaQt.hpp"

namespace OryUtils {

/// A form on the screen without a loop of its own: its events go through TToolkit::ProcessarMensagens. The other
/// windows of the program take no input while it lives.
class TExibicaoQt {
public:
    /// Waits a moment for the window system to show it: the work of the caller may take long to come back.
    explicit TExibicaoQt(TFormulario& AFormulario);
    ~TExibicaoQt();
    TExibicaoQt(const TExibicaoQt&) = delete;
    TExibicaoQt& operator=(const TExibicaoQt&) = delete;

private:
    TJanelaQt FJanela;
};

}  // namespace OryUtils
