#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>
#include <xcb/xproto.h>

namespace OryUtils::Interno {

/// What the X server tells of its keyboard at one moment.
struct TTeclado {
    xcb_keycode_t MenorTecla = 0;
    std::size_t PorTecla = 0;
    std::vector<xcb_keysym_t> Keysyms{};  // PorTecla for each key from MenorTecla on
    unsigned Modificadores = 0;           // XCB_MOD_MASK_* and XCB_BUTTON_MASK_*; bits 13 and 14 are the layout group
    std::bitset<256> Abaixadas{};         // by the X server's code of the key

    std::size_t ContarTeclas() const { return Keysyms.size() / PorTecla; }
    xcb_keysym_t Buscar(std::size_t ATecla, std::size_t ANivel) const {
        return ATecla < ContarTeclas() && ANivel < PorTecla ? Keysyms[ATecla * PorTecla + ANivel] : 0;
    }
};

/// Asks the X server named by DISPLAY; none without a server or without its library.
std::optional<TTeclado> PerguntarAoServidorX();

/// A key of the X server going down or up.
struct TToque {
    xcb_keycode_t Codigo;
    bool Soltar;
};
/// Does nothing without a server or without its XTEST extension. Returns when the server has taken all of them.
void FingirToques(std::span<const TToque> AToques);

/// Milliseconds without input, by the server's MIT-SCREEN-SAVER extension.
std::optional<std::uint32_t> PerguntarInatividade();

}  // namespace OryUtils::Interno
