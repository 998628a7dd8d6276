#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/DataHora.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// XML Schema dateTime of a local date-time, with milliseconds and the given offset from UTC, in minutes:
/// "2024-03-05T14:07:09.000-03:00". The offset 0 is written "Z". Raises EConvertError for a date outside years 1 to
/// 9999 and for an offset beyond 14 hours.
ORY_API std::u16string DataHoraParaXml(TDateTime AData, int ADeslocamentoMinutos);
/// As above with the offset that the system's time zone has at that local time. Around a change of the clocks it is the
/// offset before the change (platform/FusoHorario.hpp); seconds of an offset, as before zones had rules, are rounded.
ORY_API std::u16string DataHoraParaXml(TDateTime AData);

/// Reads an XML Schema dateTime or date, with blanks around it, and gives the instant in UTC, rounded to the
/// millisecond. Fractions of a second of any length, "Z", "+hh:mm", "-hh:mm" (up to 14:00) and 24:00:00 are understood;
/// a text without zone is taken as local time with the given offset in minutes. Raises EConvertError for anything else,
/// leap seconds and lower-case letters included, and for an instant outside years 1 to 9999.
ORY_API TDateTime XmlParaDataHoraUtc(std::u16string_view ATexto, int ADeslocamentoLocalMinutos);
/// As above; a text without zone is local time in the system's time zone.
ORY_API TDateTime XmlParaDataHoraUtc(std::u16string_view ATexto);

}  // namespace OryUtils
