#pragma once

#include <cstddef>

namespace OryUtils::Interno {

/// Tells the system that a piece of memory is about to be written to at once: it may give all pages of it in one turn,
/// instead of one by one as they are met. A wish: nothing depends on it but time, and what the memory holds stays.
void PrepararEscrita(void* AInicio, std::size_t ABytes) noexcept;

/// How many times as much a long text may ask for when it has to grow: much where the system gives memory only once it
/// is filled, so that the text seldom moves; little where what is asked for counts at once.
std::size_t BuscarFatorDeCrescimento() noexcept;
/// And how many bytes one that nobody knows the end of may ask for at least, once it is longer than a megabyte.
std::size_t BuscarReservaDeTextoLongo() noexcept;

}  // namespace OryUtils::Interno
