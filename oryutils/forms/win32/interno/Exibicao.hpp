#pragma once

#include "oryutils/forms/win32/interno/DesabilitarJanelas.hpp"
#include "oryutils/forms/win32/interno/JanelaWin32.hpp"

#include <optional>

namespace OryUtils::Interno {

/// A form on the screen without a loop of its own: its messages go through TLacoDeMensagens::Bombear. The other windows
/// of the thread take no input while it lives.
class TExibicaoWin32 {
public:
    TExibicaoWin32(TFormulario& AFormulario, TLacoDeMensagens& ALaco, TTelas& ATelas);
    ~TExibicaoWin32();
    TExibicaoWin32(const TExibicaoWin32&) = delete;
    TExibicaoWin32& operator=(const TExibicaoWin32&) = delete;

private:
    TLacoDeMensagens& FLaco;
    HWND FFocoAnterior;
    TJanelaWin32 FJanela;
    std::optional<TDesabilitarJanelas> FDesabilitadas;
};

}  // namespace OryUtils::Interno
