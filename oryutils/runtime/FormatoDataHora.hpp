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
///   am/pm a/p ampm       the mark of the twelve-hour clock, in the pattern's case (ampm: the texts of the formats);
///                        one anywhere in the pattern makes its hours twelve-based
///   t tt                 short and long time;  / and :  the separators of the formats (code 0: none)
///   'text' "text"        literal, up to the end when it is not closed; every other character stands for itself
/// A letter repeated more often counts as its longest element. Only another letter outside quotes parts an m from the
/// h before it: "hh:mm" and "hh'h'mm" have minutes, "hh x mm" has the month. The formats themselves know no c, t,
/// ddddd and dddddd. An empty pattern means c.
/// The time is rounded to the millisecond, up to the next day. A value outside years 1 to 9999 (or not a number) has
/// zeros for day, month and year and no names: "00/00/0000". Never throws.
/// Example:  FormatarDataHora(u"dd/mm/yyyy hh:mm", data)  ->  "05/03/2024 14:07"
ORY_API std::u16string FormatarDataHora(std::u16string_view APadrao, TDateTime AData,
                                        const TFormatSettings& AFormatos = FormatSettings());

/// Reads a date in the order of day, month and year of the short date pattern, with the date separator, blanks around
/// it allowed. Day and month have one or two digits, the year up to four. A year of one or two digits is placed by
/// TwoDigitYearCenturyWindow; a missing year is the current one. None when it is not a date.
ORY_API std::optional<TDateTime> TentarTextoParaData(std::u16string_view ATexto,
                                                     const TFormatSettings& AFormatos = FormatSettings());
/// The same with the current year given.
ORY_API std::optional<TDateTime> TentarTextoParaData(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                                     int AAnoCorrente);
/// Reads hours, minutes, and when present seconds and milliseconds (a number of them, after "." or the decimal
/// separator: "7:5:3.5" has 5), "am", "pm", "a", "p" or the texts of the formats, blanks around it allowed. None when
/// it is not a time.
ORY_API std::optional<TDateTime> TentarTextoParaHora(std::u16string_view ATexto,
                                                     const TFormatSettings& AFormatos = FormatSettings());
/// Date, time, or date and time separated by blanks.
ORY_API std::optional<TDateTime> TentarTextoParaDataHora(std::u16string_view ATexto,
                                                         const TFormatSettings& AFormatos = FormatSettings());
ORY_API std::optional<TDateTime> TentarTextoParaDataHora(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                                         int AAnoCorrente);

/// As TentarTextoParaData; raises EConvertError.
ORY_API TDateTime TextoParaData(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings());
/// As TentarTextoParaData; APadrao when it is not a date.
ORY_API TDateTime TextoParaDataPadrao(std::u16string_view ATexto, TDateTime APadrao,
                                      const TFormatSettings& AFormatos = FormatSettings());
/// As TentarTextoParaHora; raises EConvertError.
ORY_API TDateTime TextoParaHora(std::u16string_view ATexto, const TFormatSettings& AFormatos = FormatSettings());

}  // namespace OryUtils
