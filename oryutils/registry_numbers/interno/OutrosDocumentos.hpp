#pragma once

#include "oryutils/registry_numbers/MotivoRecusa.hpp"

#include <string_view>

/// The rules of PIS, CEI, driving licence and municipality code.
namespace OryUtils::Interno {

TMotivoRecusa ConferirPis(std::u16string_view ANumero) noexcept;
/// Raises EConvertError when the twelve characters are not a number.
TMotivoRecusa ConferirCei(std::u16string_view ANumero);
TMotivoRecusa ConferirNovoFormatoCnh(std::u16string_view ANumero) noexcept;
TMotivoRecusa ConferirFormatoAntigoCnh(std::u16string_view ANumero) noexcept;
/// Either format; a text of the integer 0 is valid too.
TMotivoRecusa ConferirCnh(std::u16string_view ANumero) noexcept;
/// Raises EConvertError when one of the first six of seven characters is not a digit.
TMotivoRecusa ConferirCodigoMunicipio(std::u16string_view ACodigo);
/// As above, and mrNenhum for the codes in use that break the rule.
TMotivoRecusa ConferirCodigoMunicipioOficial(std::u16string_view ACodigo);

}  // namespace OryUtils::Interno
