#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace OryUtils::Interno {

/// The characters that a virtual key (numbered as on Windows) produces with the current keyboard state: none, one or
/// more. Windows translates by ToUnicodeEx with the calling thread's layout. Linux asks the X server named by DISPLAY
/// for the modifiers and the layout, through a library loaded at run time; without a display there is no keyboard
/// and the answer is empty.
std::u16string TraduzirTeclaVirtual(std::uint16_t ATecla);

/// A key going down or up.
struct TEventoDeTecla {
    std::uint16_t Tecla = 0;  // numbered as on Windows
    bool Soltar = false;
    bool Estendida = false;  // the keypad's Enter, the right Ctrl and Alt; on Windows the keys between the blocks too
    bool operator==(const TEventoDeTecla&) const = default;
};

/// Gives the events to the system as if the keys had been moved. Windows: keybd_event with the scan code of each key.
/// Linux: the XTEST extension of the X server named by DISPLAY; a key that its layout does not have is left out, and
/// nothing happens without a display or without the extension.
void EnviarEventosDeTecla(std::span<const TEventoDeTecla> AEventos);

/// Whether the key is down now. The numbers of Shift, Ctrl, Alt and Enter mean the left and the right key; 1, 2 and 4
/// are the mouse's left, right and middle button. False without a display.
bool TeclaEstahAbaixada(std::uint16_t ATecla);

/// Milliseconds since the user last moved a key or the mouse; wraps as the system's tick count does. Linux: as the
/// screen saver extension of the X server tells; 0 without a display or without the extension.
std::uint32_t BuscarTempoDeInatividade();

}  // namespace OryUtils::Interno
