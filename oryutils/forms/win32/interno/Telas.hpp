#pragma once

#include "oryutils/forms/win32/ToolkitWin32.hpp"
#include "oryutils/forms/win32/interno/FonteDialogo.hpp"

#include <map>

namespace OryUtils::Interno {

/// What the system tells of the screen where AJanela is; of the main one for null.
TTelaWin32 BuscarTelaDoSistema(void* AJanela);

/// The outer size of a window of that client size and style on a screen of AEscala pixels per inch.
SIZE BuscarTamanhoExterno(HWND AJanela, TTamanho ACliente, int AEscala);

/// The screens where forms open, and the dialog font of each.
class TTelas {
public:
    explicit TTelas(TBuscarTelaWin32 ABuscar) : FBuscar(ABuscar ? std::move(ABuscar) : &BuscarTelaDoSistema) {}

    TTelaWin32 Buscar(HWND AJanela) const { return FBuscar(AJanela); }
    const TFonteDialogo& BuscarFonte(int APixelsPorPolegada) {
        return FFontes.try_emplace(APixelsPorPolegada, APixelsPorPolegada).first->second;
    }

private:
    TBuscarTelaWin32 FBuscar;
    std::map<int, TFonteDialogo> FFontes;
};

}  // namespace OryUtils::Interno
