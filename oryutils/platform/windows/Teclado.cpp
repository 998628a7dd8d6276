#include "oryutils/platform/Teclado.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <array>

namespace OryUtils::Plataforma {

std::u16string TraduzirTeclaVirtual(std::uint16_t ATecla) {
    std::array<BYTE, 256> estado{};
    if (ATecla >= estado.size() || !::GetKeyboardState(estado.data())) return {};
    const HKL leiaute = ::GetKeyboardLayout(0);
    std::array<wchar_t, 16> caracteres{};
    // No flags: a dead key stays pending for the next one, as ToAscii has it. Below zero: the key was a dead one.
    const int quantidade = ::ToUnicodeEx(ATecla, ::MapVirtualKeyExW(ATecla, MAPVK_VK_TO_VSC, leiaute), estado.data(),
                                         caracteres.data(), static_cast<int>(caracteres.size()), 0, leiaute);
    return {caracteres.begin(), caracteres.begin() + std::max(quantidade, 0)};
}

}  // namespace OryUtils::Plataforma
