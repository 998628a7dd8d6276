#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <cstdint>
#include <optional>

namespace OryUtils {

/// A date and time: days since 1899-12-30, the fraction is the time of day. Before that day the fraction still counts
/// forward from midnight (-1.25 is 1899-12-29 06:00).
struct TDateTime {
    double Valor = 0;

    constexpr TDateTime() = default;
    constexpr TDateTime(double AValor) : Valor(AValor) {}
    constexpr operator double() const { return Valor; }
};

struct TPartesData {
    int Ano, Mes, Dia;
    bool operator==(const TPartesData&) const = default;
};
struct TPartesHora {
    int Hora, Minuto, Segundo, Milissegundo;
    bool operator==(const TPartesHora&) const = default;
};

ORY_API bool EhAnoBissexto(int AAno) noexcept;
/// 28 to 31; 0 when AMes is not 1 to 12.
ORY_API int BuscarDiasNoMes(int AAno, int AMes) noexcept;

/// The date, years 1 to 9999; none when there is no such day.
ORY_API std::optional<TDateTime> TentarCodificarData(int AAno, int AMes, int ADia) noexcept;
/// The time of day, 00:00:00.000 to 23:59:59.999; none outside.
ORY_API std::optional<TDateTime> TentarCodificarHora(int AHora, int AMinuto, int ASegundo, int AMili) noexcept;
/// As the Tentar forms; raises EConvertError.
ORY_API TDateTime CodificarData(int AAno, int AMes, int ADia);
ORY_API TDateTime CodificarHora(int AHora, int AMinuto, int ASegundo, int AMili);

/// Year, month and day of the value rounded to the millisecond: what rounds up to midnight is the next day. A value
/// outside years 1 to 9999 (or not a number) gives 0, 0, 0.
ORY_API TPartesData DecodificarData(TDateTime AData) noexcept;
/// Time of day, rounded to the millisecond. A value without one (not a number, infinite, a hundred million days away)
/// gives 00:00:00.000.
ORY_API TPartesHora DecodificarHora(TDateTime AData) noexcept;
/// 1 = Sunday to 7 = Saturday; 0 where DecodificarData gives 0, 0, 0.
ORY_API int BuscarDiaDaSemana(TDateTime AData) noexcept;

/// The date part: the value cut to whole days towards zero.
ORY_API TDateTime BuscarParteData(TDateTime AData) noexcept;
/// The time part, 0 up to 1, unrounded.
ORY_API TDateTime BuscarParteHora(TDateTime AData) noexcept;
/// Date and time of day joined, also before 1899-12-30.
ORY_API TDateTime JuntarDataHora(TDateTime AData, TDateTime AHora) noexcept;

/// AData, rounded to the millisecond, moved by calendar months or years; the day is clamped to the month's end. Raises
/// EConvertError outside years 1 to 9999.
ORY_API TDateTime IncrementarMes(TDateTime AData, int AMeses);
ORY_API TDateTime IncrementarAno(TDateTime AData, int AAnos);
/// AData, rounded to the millisecond, moved by whole milliseconds. A value without a time of day comes back as it is.
ORY_API TDateTime IncrementarMilissegundos(TDateTime AData, std::int64_t AMilissegundos) noexcept;

/// The current local date and time; the current date.
ORY_API TDateTime Agora();
ORY_API TDateTime Hoje();

}  // namespace OryUtils
