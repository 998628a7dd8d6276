#pragma once

#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/types/OryTypesTempo.hpp"

#include <string>
#include <string_view>

// What depends on the present takes it here as an argument.
namespace OryUtils::Interno {

/// TOryUtilsDatas::BuscarDataHoraMedidaTempo, whose other ordinals give AAgora().
TDateTime Deslocar(TDateTime ABase, OryTypes::TTipoMedidaTempo AMedida, int AQuantidade, TDateTime (*AAgora)());

/// TOryUtilsDatas::FormatarData, in the year of the clock or in a given one.
std::u16string Completar(std::u16string_view ATexto, const TFormatSettings& AFormatos);
std::u16string Completar(std::u16string_view ATexto, const TFormatSettings& AFormatos, int AAnoCorrente);

}  // namespace OryUtils::Interno
