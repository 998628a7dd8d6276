#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace OryUtils::Interno {

using TKeysym = std::uint32_t;

// Bits of the modifiers; two more hold the layout group.
inline constexpr unsigned CShift = 0x01;
inline constexpr unsigned CCapsLock = 0x02;
inline constexpr unsigned CControl = 0x04;
inline constexpr unsigned CAltGr = 0x80;
inline constexpr unsigned CDeslocamentoGrupo = 13;
// Buttons of the mouse.
inline constexpr unsigned CBotaoEsquerdo = 0x100;
inline constexpr unsigned CBotaoDoMeio = 0x200;
inline constexpr unsigned CBotaoDireito = 0x400;

/// What the X server tells of its keyboard at one moment.
struct TTeclado {
    std::uint8_t MenorTecla = 0;
    std::size_t PorTecla = 0;
    std::vector<TKeysym> Keysyms{};  // PorTecla for each key from MenorTecla on
    unsigned Modificadores = 0;
    std::bitset<256> Abaixadas{};  // by the X server's code of the key

    std::size_t ContarTeclas() const { return Keysyms.size() / PorTecla; }
    TKeysym Buscar(std::size_t ATecla, std::size_t ANivel) const {
        return ATecla < ContarTeclas() && ANivel < PorTecla ? Keysyms[ATecla * PorTecla + ANivel] : 0;
    }
};

/// Asks the X server named by DISPLAY; none without a server or without its library.
std::optional<TTeclado> PerguntarAoServidorX();

/// A key of the X server going down or up.
struct TToque {
    std::uint8_t Codigo;
    bool Soltar;
};
/// Does nothing without a server or without its XTEST extension. Comes back when the server has taken them all.
void FingirToques(std::span<const TToque> AToques);

/// Milliseconds without input, by the server's MIT-SCREEN-SAVER extension.
std::optional<std::uint32_t> PerguntarInatividade();

}  // namespace OryUtils::Interno
