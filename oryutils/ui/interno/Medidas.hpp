#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <cstddef>

namespace OryUtils {

/// ANumerador / ADenominador (positive) to the nearest integer, halves to even; kept within an int.
int DividirArredondando(long long ANumerador, long long ADenominador);

/// Width of a button whose caption has ACaracteres characters, in pixels: round(points * characters * 8 / 11), at
/// least 75.
int CalcularLarguraBotao(int APontos, std::size_t ACaracteres);

/// Average character of the dialog font: the 52 letters measured together, their width divided by 52.
TTamanho MedirCaractere(const TToolkit& AToolkit);

/// To pixels of the screen. A dialog unit is a quarter of the average width across, an eighth of the height down.
class TUnidades {
public:
    explicit TUnidades(const TToolkit& AToolkit)
        : FCaractere(MedirCaractere(AToolkit)), FPixelsPorPolegada(AToolkit.GetPixelsPorPolegada()) {}
    int Horizontal(int AUnidades) const { return DividirArredondando(1LL * AUnidades * FCaractere.Largura, 4); }
    int Vertical(int AUnidades) const { return DividirArredondando(1LL * AUnidades * FCaractere.Altura, 8); }
    /// Pixels at 96 per inch, as every stated number is, to pixels of the screen.
    int Escalar(int APixels) const;
    const TTamanho& GetCaractere() const { return FCaractere; }

private:
    TTamanho FCaractere;
    int FPixelsPorPolegada;
};

// Distances shared by all dialogs, in dialog units.
inline constexpr int CMargem = 7;
inline constexpr int CEspacoEntreBotoes = 4;
inline constexpr int CLarguraMinimaBotao = 50;
inline constexpr int CAlturaBotao = 14;
inline constexpr int CFolgaCaption = 6;  // between a caption and the button's sides, each

/// What a form may take of its screen: the work area less the window's own frame.
TTamanho BuscarAreaUtil(const TToolkit& AToolkit);

/// Size of ATexto wrapped at AMaximo.Largura. Only as much of it is measured as could fit AMaximo: for a longer text
/// the height is AMaximo.Altura + 1, whatever it measures.
TTamanho MedirTextoLimitado(const TToolkit& AToolkit, std::u16string_view ATexto, TTamanho AMaximo);

}  // namespace OryUtils
