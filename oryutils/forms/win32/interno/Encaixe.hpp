#pragma once

#include "oryutils/forms/win32/interno/FonteDialogo.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// ACaption in lines of at most ALargura pixels: parted at blanks, and inside a word that is wider. Its "&" stay.
std::vector<std::u16string> QuebrarCaption(const TFonteDialogo& AFonte, std::u16string_view ACaption, int ALargura);

struct TEncaixe {
    std::u16string Texto;
    bool Inteiro = true;  ///< false: the end was left out, and "…" stands for it
};
/// As much of ACaption as fits AEspaco, at least one line of it.
TEncaixe EncaixarCaption(const TFonteDialogo& AFonte, std::u16string_view ACaption, TTamanho AEspaco);

/// Size of a check box or an option with ACaption, at most ALarguraMaxima wide: mark and lines of text.
TTamanho MedirMarcavel(const TFonteDialogo& AFonte, std::u16string_view ACaption, int ALarguraMaxima);
/// What its mark and edges take of it, pixels at 96 per inch.
inline constexpr TTamanho CFolgaDoMarcavel{22, 2};
inline constexpr TTamanho CFolgaDoBotao{10, 6};

/// A tool tip for AControle, on the window that it belongs to; none for an empty text.
void MostrarDica(HWND AControle, std::u16string_view ATexto);

}  // namespace OryUtils::Interno
