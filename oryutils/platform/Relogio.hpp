#pragma once

namespace OryUtils::Interno {

/// A local date and time as the wall shows it.
struct TInstanteLocal {
    int Ano, Mes, Dia, Hora, Minuto, Segundo, Milissegundo;

    bool operator==(const TInstanteLocal&) const = default;
};

/// The current local date and time.
TInstanteLocal BuscarInstanteLocal();

}  // namespace OryUtils::Interno
