#include "oryutils/platform/Memoria.hpp"

#include <cstdint>
#include <sys/mman.h>

namespace OryUtils::Interno {

void PrepararEscrita(void* AInicio, std::size_t ABytes) noexcept {
    constexpr std::uintptr_t CPagina = 4096;
    const auto inicio = reinterpret_cast<std::uintptr_t>(AInicio) / CPagina * CPagina;
    const auto fim = (reinterpret_cast<std::uintptr_t>(AInicio) + ABytes + CPagina - 1) / CPagina * CPagina;
    constexpr int CPovoar = 23;  // MADV_POPULATE_WRITE, which older headers lack; older systems refuse it
    ::madvise(reinterpret_cast<void*>(inicio), fim - inicio, CPovoar);
}

std::size_t BuscarFatorDeCrescimento() noexcept { return 16; }
std::size_t BuscarReservaDeTextoLongo() noexcept { return std::size_t{256} << 20; }

}  // namespace OryUtils::Interno
