#pragma once

#include <array>
#include <string>

namespace OryTypes {

/// Formats in which dates and numbers are written and read. Names are indexed from 0: Sunday, January.
struct TFormatSettings {
    char16_t DateSeparator = u'/';
    char16_t TimeSeparator = u':';
    char16_t DecimalSeparator = u'.';
    char16_t ThousandSeparator = u',';
    /// Patterns of the date-time format language ("dd/mm/yyyy", "hh:nn:ss").
    std::u16string ShortDateFormat{};
    std::u16string LongDateFormat{};
    std::u16string ShortTimeFormat{};
    std::u16string LongTimeFormat{};
    std::u16string TimeAMString{};
    std::u16string TimePMString{};
    std::array<std::u16string, 12> ShortMonthNames{};
    std::array<std::u16string, 12> LongMonthNames{};
    std::array<std::u16string, 7> ShortDayNames{};
    std::array<std::u16string, 7> LongDayNames{};
    /// Two-digit years fall in the hundred years that start this many years before the current one.
    int TwoDigitYearCenturyWindow = 50;

    bool operator==(const TFormatSettings&) const = default;
};

}  // namespace OryTypes
