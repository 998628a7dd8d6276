#pragma once

#include "oryutils/forms/Controles.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <string_view>

namespace OryUtils::Interno {

/// The font in which the system shows messages, as large as a screen needs it, and measures of text in it.
class TFonteDialogo {
public:
    explicit TFonteDialogo(int APixelsPorPolegada);
    ~TFonteDialogo();
    TFonteDialogo(const TFonteDialogo&) = delete;
    TFonteDialogo& operator=(const TFonteDialogo&) = delete;

    HFONT GetHandle() const noexcept { return FFonte; }
    int GetPixelsPorPolegada() const noexcept { return FPixelsPorPolegada; }
    /// Pixels at 96 per inch as pixels of the screen, rounded up.
    int Escalar(int APixels) const noexcept { return (APixels * FPixelsPorPolegada + 95) / 96; }
    int GetPontos() const noexcept { return FPontos; }
    int GetAlturaLinha() const noexcept { return FAlturaLinha; }
    /// ALarguraMaxima above 0 wraps at words, and inside words longer than it.
    TTamanho Medir(std::u16string_view ATexto, int ALarguraMaxima) const;

private:
    HFONT FFonte = nullptr;
    int FPixelsPorPolegada;
    int FPontos = 8;
    int FAlturaLinha = 13;
};

}  // namespace OryUtils::Interno
