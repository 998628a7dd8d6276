#pragma once

#include "oryutils/dates/UnOryUtilsDatasTypes.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The pattern of TOryUtilsDatas::BuscarDataFormatada without a mask; empty for an ordinal without a name.
constexpr std::u16string_view BuscarPadrao(TTipoFormatoData ATipo) {
    switch (ATipo) {
        case fdData:
            return u"MM/DD/YYYY";
        case fdDataHora:
            return u"DD/MM/YYYY HH:MM:SS";
        case fdHora:
            return u"HH:MM";
        default:
            return {};
    }
}

/// AData by the pattern of ATipo: the text that FormatarDataHora gives, written straight, since reports and SQL texts
/// ask for it by the million.
std::u16string FormatarPeloTipo(TTipoFormatoData ATipo, TDateTime AData, const TFormatSettings& AFormatos);

}  // namespace OryUtils::Interno
