#include "oryutils/platform/Teclado.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <array>

namespace OryUtils::Interno {

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

void EnviarEventosDeTecla(std::span<const TEventoDeTecla> AEventos) {
    for (const TEventoDeTecla& evento : AEventos) {
        const DWORD marcas = (evento.Soltar ? KEYEVENTF_KEYUP : 0u) | (evento.Estendida ? KEYEVENTF_EXTENDEDKEY : 0u);
        ::keybd_event(static_cast<BYTE>(evento.Tecla),
                      static_cast<BYTE>(::MapVirtualKeyW(evento.Tecla, MAPVK_VK_TO_VSC)), marcas, 0);
    }
}

bool TeclaEstahAbaixada(std::uint16_t ATecla) { return ::GetAsyncKeyState(ATecla) < 0; }

std::uint32_t BuscarTempoDeInatividade() {
    LASTINPUTINFO ultimo{sizeof ultimo, 0};
    if (!::GetLastInputInfo(&ultimo)) return 0;
    return ::GetTickCount() - ultimo.dwTime;
}

}  // namespace OryUtils::Interno
