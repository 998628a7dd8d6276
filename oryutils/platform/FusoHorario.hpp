#pragma once

#include "oryutils/platform/Relogio.hpp"

#include <cstdint>

namespace OryUtils::Interno {

/// Offset of a time zone from UTC at an instant, in seconds, positive to the east of Greenwich. The instant is in
/// seconds since 1970-01-01 00:00 UTC.
using TFuso = std::int32_t (*)(std::int64_t AInstante);

/// The zone of this system. Instants that the system can not tell about (Windows: before 1601) take the offset of the
/// nearest one that it can. Never throws.
std::int32_t BuscarDeslocamentoNoInstante(std::int64_t AInstante);

/// Offset from UTC, in minutes (nearest), of AFuso at the local date-time AInstante, years 1 to 9999.
/// Around a change of the clocks the offset before the change counts in both doubtful cases: a time that happens twice
/// is its first occurrence, and a time that is skipped is counted on as if the clocks had not changed yet.
/// Example:  America/Sao_Paulo, 2024-03-05 14:07  ->  -180
int BuscarDeslocamentoLocal(const TInstanteLocal& AInstante, TFuso AFuso = BuscarDeslocamentoNoInstante);

}  // namespace OryUtils::Interno
