#include "oryutils/platform/Memoria.hpp"

namespace OryUtils::Interno {

void PrepararEscrita(void*, std::size_t) noexcept {}

std::size_t BuscarFatorDeCrescimento() noexcept { return 2; }
std::size_t BuscarReservaDeTextoLongo() noexcept { return 0; }

}  // namespace OryUtils::Interno
