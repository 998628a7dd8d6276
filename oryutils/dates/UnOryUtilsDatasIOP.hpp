#pragma once

#include "oryutils/dates/UnOryUtilsDatasTypes.hpp"
#include "oryutils/runtime/DataHora.hpp"

#include <string>

namespace OryUtils {

/// What TOryUtilsDatas::BuscarDataFormatada reads. The caller creates and keeps it.
struct TOryUtilsDatasFormatacaoDataIOP {
    bool AdicionarAspas = false;     // in: the text as an SQL literal, in single quotes
    std::u16string Mascara{};        // in: pattern of the date-time format language; blank = by Tipo
    TTipoFormatoData Tipo = fdData;  // in: ignored when there is a mask
    TDateTime Data{};                // in

    /// Copies every property.
    void Assign(const TOryUtilsDatasFormatacaoDataIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDatasFormatacaoDataIOP&) const = default;
};

}  // namespace OryUtils
