#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils {

/// Writes AData by a pattern of the date-time format language. Letters count in either case:
///   c                    short date and, unless midnight, long time
///   d dd ddd dddd        day, two digits, short name, long name;  ddddd short date, dddddd long date
///   m mm mmm mmmm        month likewise; m and mm right after h or hh are minutes
///   yy yyyy              year;  h hh n nn s ss z zzz  hour, minute, second, millisecond
///   am/pm a/p ampm       twelve-hour clock and its mark, in the pattern's case (ampm: the locale's texts)
///   t tt                 short and long time;  / and :  the separators of the formats
///   'text' "text"        literal; every other character stands for itself
/// An empty pattern means c. Never throws.
/// Example:  FormatarDataHora(u"dd/mm/yyyy hh:mm", data)  ->  "05/03/2024 14:07"
ORY_API std::u16string FormatarDataHora(std::u16string_view APadrao, TDateTime AData,
                                        const TFormatSettings& AFormatos = FormatSettings());

/// Reads a date in the order of day, month and year of the short date pattern, with its separator. A two-digit year is
/// placed by TwoDigitYearCenturyWindow; a missing year is the current one. None when it is not a date.
ORY_API std::optional<TDateTime> TentarTextoParaData(std::u16string_view ATexto,
                                                     const TFormatSettings& AFormatos = FormatSettings());
/// Reads hours, minutes, and when present seconds and milliseconds, "am" and "pm". None when it is not a time.
ORY_API std::optional<TDateTime> TentarTextoParaHora(std::u16string_view ATexto,
                                                     const TFormatSettings& AFormatos = FormatSettings());
/// Date, time, or date and time separated by blanks.
ORY_API std::optional<TDateTime> TentarTextoParaDataHora(std::u16string_view ATexto,
                                                         const TFormatSettings& AFormatos = FormatSettings());

/// As TentarTextoParaData; raises EConvertError.
ORY_API TDateTime TextoParaData(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings());
/// As TentarTextoParaData; APadrao when it is not a date.
ORY_API TDateTime TextoParaDataPadrao(std::u16string_view ATexto, TDateTime APadrao,
                                      const TFormatSettings& AFormatos = FormatSettings());
/// As TentarTextoParaHora; raises EConvertError.
ORY_API TDateTime TextoParaHora(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings());

}  // namespace OryUtils
