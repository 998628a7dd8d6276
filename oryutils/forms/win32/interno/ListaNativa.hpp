#pragma once

#include "oryutils/forms/Controles.hpp"
#include "oryutils/forms/win32/interno/FonteDialogo.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <vector>

namespace OryUtils::Interno {

// The native side of a TListaEscolha, a list box of the system.

void MostrarItens(HWND ALista, const TListaEscolha& AModelo, const TFonteDialogo& AFonte);
/// The height of the rows, and how far the list scrolls to the side, follow the font.
void AjustarItens(HWND ALista, const TFonteDialogo& AFonte);
void MostrarEscolhidos(HWND ALista, const TListaEscolha& AModelo);
std::vector<int> LerItensEscolhidos(HWND ALista, bool AVarios);

}  // namespace OryUtils::Interno
