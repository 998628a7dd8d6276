#pragma once

#include "oryutils/platform/DadosDoArquivo.hpp"
#include "oryutils/platform/FusoHorario.hpp"
#include "oryutils/runtime/DataHora.hpp"

#include <optional>

namespace OryUtils::Interno {

/// AInstante as local time in the packed form of the file system, which keeps seconds by two and the years 1980 to
/// 2107: the even second at or before it; 0 for an instant that the form does not hold.
TDateTime BuscarDataEmpacotada(Interno::TInstanteUtc AInstante,
                               Interno::TFuso AFuso = Interno::BuscarDeslocamentoNoInstante);

/// The instant of a local date and time, to the millisecond; none outside years 1 to 9999.
std::optional<Interno::TInstanteUtc> BuscarInstanteUtc(TDateTime ALocal,
                                                       Interno::TFuso AFuso = Interno::BuscarDeslocamentoNoInstante);

}  // namespace OryUtils::Interno
