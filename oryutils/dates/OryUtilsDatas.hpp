#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/dates/UnOryUtilsDatasIOP.hpp"
#include "oryutils/dates/UnOryUtilsDatasTypes.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Instancia.hpp"
#include "oryutils/types/OryTypesTempo.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

using OryTypes::CVetorDiasSemanaCompleto;
using OryTypes::TTipoMedidaTempo;
using enum OryTypes::TTipoMedidaTempo;

/// The enumerations of the free functions; the same ordinals as TTipoFormatoData and TTipoOrientacaoData.
enum TTipoFormatacaoData : int {
    tfdData = 0,
    tfdDataHora = 1,
    tfdHora = 2,
};
enum TTipoOrientadaData : int {
    todDiaMes = 0,
    todMesDia = 1,
};

/// Dates and fiscal periods of the year. Separators, day and month names are those of the process-wide formats
/// (FormatSettings). Operations that give a date give it without a time part. A value outside years 1 to 9999 has no
/// month or year: operations that answer a date from it raise EConvertError, those that answer a number of a period
/// or of a month answer 0.
class ORY_API TOryUtilsDatas {
public:
    /// Day 1 of the month of AData.
    static TDateTime BuscarPrimeiroDiaMes(TDateTime AData);
    /// Day 1 of the current month.
    static TDateTime BuscarPrimeiroDiaMesCorrente();
    /// Last day of the month of AData.
    /// Example:  10/02/2024  ->  29/02/2024
    static TDateTime BuscarUltimoDiaMes(TDateTime AData);
    /// AData without its time part.
    static TDateTime BuscarDataSemHora(TDateTime AData);
    /// Hours and minutes, "14:07"; seconds are cut, not rounded.
    static std::u16string BuscarHoraSemSegundos(TDateTime AData);

    /// Full weekday name of CVetorDiasSemanaCompleto, "Terça-feira".
    static std::u16string BuscarDescricaoDiaSemana(TDateTime AData);
    /// The long date: "Domingo, 05 de Abril de 2026". Day and month names come from the formats, with the first letter
    /// in upper case and the rest in lower case.
    static std::u16string BuscarDataPorExtenso(TDateTime AData);

    /// AData as text. A mask that is not blank is the pattern, untrimmed, for every type (the language of
    /// FormatarDataHora). Without one fdData gives "MM/DD/YYYY" (month first), fdDataHora "DD/MM/YYYY HH:MM:SS" (day
    /// first) and fdHora "HH:MM"; the two orders are what callers have always stored. AAdicionarAspas puts the text in
    /// single quotes, with the inner ones doubled, for SQL. Any other ordinal of the type gives "" (quoted on demand).
    /// Example:  05/03/2024 14:07:09  ->  "03/05/2024",  fdDataHora "05/03/2024 14:07:09",  fdHora "14:07"
    static std::u16string BuscarDataFormatada(const TOryUtilsDatasFormatacaoDataIOP& AParametros);
    static std::u16string BuscarDataFormatada(TDateTime AData);
    static std::u16string BuscarDataFormatada(TDateTime AData, bool AAdicionarAspas);
    static std::u16string BuscarDataFormatada(TDateTime AData, TTipoFormatoData ATipoFormatacao,
                                              std::u16string_view AMascara, bool AAdicionarAspas);

    /// Whole days from the date of ADataInicial to the date of ADataFim; negative when the end is earlier. Times of day
    /// play no part. A count that does not fit an int stops at its limit; without a number (NaN) it is 0.
    static int CalcularDiferencaEntreDatas(TDateTime ADataInicial, TDateTime ADataFim);
    /// The same count without its sign.
    static int BuscarDiasEntreDatas(TDateTime ADataInicial, TDateTime ADataFim);

    /// Number of the period of the year in which AData falls: 1 to 6, 1 to 4, 1 to 2.
    static int BuscarBimestre(TDateTime AData);
    static int BuscarTrimestre(TDateTime AData);
    static int BuscarSemestre(TDateTime AData);
    /// Number of the first month of that period.
    static int BuscarPrimeiroMesDoBimestre(TDateTime AData);
    static int BuscarPrimeiroMesDoTrimestre(TDateTime AData);
    static int BuscarPrimeiroMesDoQuadrimestre(TDateTime AData);
    static int BuscarPrimeiroMesDoSemestre(TDateTime AData);
    /// Last day of that period.
    /// Example:  10/02/2024  ->  29/02/2024, 31/03/2024, 30/04/2024, 30/06/2024
    static TDateTime BuscarDataFinalDoBimestre(TDateTime AData);
    static TDateTime BuscarDataFinalDoTrimestre(TDateTime AData);
    static TDateTime BuscarDataFinalDoQuadrimestre(TDateTime AData);
    static TDateTime BuscarDataFinalDoSemestre(TDateTime AData);

    /// True when AData is a date in the short date format, later than 30/12/1899. Never raises.
    static bool EhDataValida(std::u16string_view AData);
    /// Reads a text with a number of two digits at characters 1-2 and 4-5 and a year at 7-10; what stands between and
    /// after is not looked at. odDiaMes takes a month-first text, odMesDia a day-first one. A text without anything but
    /// punctuation gives 0. Raises EConvertError for a piece that is not a number and for an impossible date.
    /// Example:  ("03/05/2024", odDiaMes)  ->  5 March 2024;  with odMesDia 3 May 2024
    static TDateTime ConverterOrientacaoData(std::u16string_view AData, TTipoOrientacaoData ATipoOrientacao);

    /// XML Schema dateTime of a local date-time, with milliseconds and the offset from UTC of the system's time zone at
    /// that time: "2024-03-05T14:07:09.000-03:00". Raises EConvertError outside years 1 to 9999.
    static std::u16string ConverterDataParaFormatoXML(TDateTime AData);
    /// The instant of an XML Schema dateTime or date, in UTC; blank gives 0. A text without zone is local time. Raises
    /// EConvertError for any other text.
    static TDateTime ConverterDataXMLParaFormatoNativo(std::u16string_view AData);

    /// AMinutos * 60000. Beyond 35791 minutes the product does not fit and wraps around, modulo 2^32.
    static int ConverterMinutosParaMilisegundos(int AMinutos);
    /// A count of milliseconds as a time of day in the long time format; hours wrap at 24. ARetornarUnidade adds the
    /// unit of the largest part that is not zero: " hora(s)", " minuto(s)" or " segundo(s)".
    /// Example:  (150000, true)  ->  "00:02:30 minuto(s)"
    static std::u16string ConverterMilisegundosParaTempo(int AMilisegundos, bool ARetornarUnidade);

    /// ADataHoraBase moved by AQuantidade seconds, minutes, hours, days, months or years (ordinals 3 to 8 of the unit);
    /// months and years are of the calendar, with the day clamped to the month's end. Any other ordinal gives the
    /// current date and time, not the base. Raises EConvertError when months or years leave 1 to 9999.
    static TDateTime BuscarDataHoraMedidaTempo(TDateTime ADataHoraBase, TTipoMedidaTempo ATipoMedidaTempo,
                                               int AQuantidade);

    /// Completes a date, a time or a date and time as typed, in the process-wide formats. Never raises.
    ///   - The date has two or three groups of digits in the order of the short date format (a first group of four
    ///     digits is the year of a year-month-day date), separated by "/", "-", "." or the date separator; or it is 4,
    ///     6 or 8 digits together. Day and month get two digits, the year four: a missing one is the current year, one
    ///     or two digits fall in the window of the formats.
    ///   - The time has one to four groups: hours, minutes, seconds, milliseconds, separated by ":" or the time
    ///     separator, the last one also by "." or ","; one group is a time only after a date. It may end in "am" or
    ///     "pm". It is written with hours, minutes and seconds, and with milliseconds when they were typed.
    ///   - Blank text gives "". Anything else, impossible dates and times included, comes back unchanged.
    /// Example:  "5/3/24" -> "05/03/2024",  "5/3/2024 7:5" -> "05/03/2024 07:05:00",  "7:5:3.25" -> "07:05:03.025"
    static std::u16string FormatarData(std::u16string_view ATexto);
};

extern ORY_API TInstanciaGlobal<TOryUtilsDatas> GOryUtilsDatas;

/// Free functions with the older names; each is the operation of the class of the same meaning.
inline TDateTime GetPrimeiroDiaMes(TDateTime AData) { return TOryUtilsDatas::BuscarPrimeiroDiaMes(AData); }
inline TDateTime GetPrimeiroDiaMesCorrente() { return TOryUtilsDatas::BuscarPrimeiroDiaMesCorrente(); }
inline TDateTime GetUltimoDiaMes(TDateTime AData) { return TOryUtilsDatas::BuscarUltimoDiaMes(AData); }
inline TDateTime GetDataSemHora(TDateTime AData) { return TOryUtilsDatas::BuscarDataSemHora(AData); }
inline std::u16string GetHoraSemSegundos(TDateTime AData) { return TOryUtilsDatas::BuscarHoraSemSegundos(AData); }
inline std::u16string GetDescricaoDiaSemana(TDateTime AData) { return TOryUtilsDatas::BuscarDescricaoDiaSemana(AData); }
inline std::u16string GetDataPorExtenso(TDateTime AData) { return TOryUtilsDatas::BuscarDataPorExtenso(AData); }
inline std::u16string FormatarData(std::u16string_view ATexto) { return TOryUtilsDatas::FormatarData(ATexto); }
inline bool EhDataValida(std::u16string_view AData) { return TOryUtilsDatas::EhDataValida(AData); }
inline TDateTime ConverterDataXML(std::u16string_view AData) {
    return TOryUtilsDatas::ConverterDataXMLParaFormatoNativo(AData);
}
inline int BuscarDiasEntreDatas(TDateTime ADataInicial, TDateTime ADataFim) {
    return TOryUtilsDatas::BuscarDiasEntreDatas(ADataInicial, ADataFim);
}
inline int BuscarBimestre(TDateTime AData) { return TOryUtilsDatas::BuscarBimestre(AData); }
inline int BuscarTrimestre(TDateTime AData) { return TOryUtilsDatas::BuscarTrimestre(AData); }
inline int BuscarSemestre(TDateTime AData) { return TOryUtilsDatas::BuscarSemestre(AData); }
inline int BuscarPrimeiroMesDoBimestre(TDateTime AData) { return TOryUtilsDatas::BuscarPrimeiroMesDoBimestre(AData); }
inline int BuscarPrimeiroMesDoTrimestre(TDateTime AData) { return TOryUtilsDatas::BuscarPrimeiroMesDoTrimestre(AData); }
inline int BuscarPrimeiroMesDoQuadrimestre(TDateTime AData) {
    return TOryUtilsDatas::BuscarPrimeiroMesDoQuadrimestre(AData);
}
inline int BuscarPrimeiroMesDoSemestre(TDateTime AData) { return TOryUtilsDatas::BuscarPrimeiroMesDoSemestre(AData); }
inline TDateTime BuscarDataFinalDoBimestre(TDateTime AData) { return TOryUtilsDatas::BuscarDataFinalDoBimestre(AData); }
inline TDateTime BuscarDataFinalDoQuadrimestre(TDateTime AData) {
    return TOryUtilsDatas::BuscarDataFinalDoQuadrimestre(AData);
}
inline TDateTime BuscarDataFinalDoSemestre(TDateTime AData) { return TOryUtilsDatas::BuscarDataFinalDoSemestre(AData); }
inline std::u16string GetDataFormatada(TDateTime AData, bool AAdicionarAspas) {
    return TOryUtilsDatas::BuscarDataFormatada(AData, AAdicionarAspas);
}

/// The rules of TOryUtilsDatas::BuscarDataFormatada with the tfd values.
inline std::u16string GetDataFormatada(TDateTime AData, TTipoFormatacaoData ATipoFormatacao,
                                       std::u16string_view AMascara, bool AAdicionarAspas) {
    return TOryUtilsDatas::BuscarDataFormatada(AData, static_cast<TTipoFormatoData>(ATipoFormatacao), AMascara,
                                               AAdicionarAspas);
}
/// As TOryUtilsDatas::ConverterOrientacaoData for todDiaMes. With todMesDia the text is checked, and raises as there,
/// but the date is dropped: the result is always 0. Callers of old depend on it; use the class operation.
ORY_API TDateTime ConverterOrientacaoData(std::u16string_view AData, TTipoOrientadaData ATipoOrientacao);
/// NEVER call it: it calls itself without end until the stack is exhausted and the process dies. It stays because its
/// name is part of the interface. Use TOryUtilsDatas::BuscarDataFinalDoTrimestre instead.
ORY_API TDateTime BuscarDataFinalDoTrimestre(TDateTime AData);

}  // namespace OryUtils
