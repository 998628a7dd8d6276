#include "oryutils/platform/FusoHorario.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

// FILETIME counts units of 100 ns from 1601 on.
constexpr std::int64_t CUnidadesPorSegundo = 10'000'000;
constexpr std::int64_t CSegundosDe1601A1970 = 11'644'473'600;
constexpr std::int64_t CUltimoInstante = 253'402'300'799;  // end of the year 9999
constexpr std::int64_t CDoisDias = 2 * 24 * 60 * 60;

SYSTEMTIME ParaSystemTime(std::int64_t AInstante) {
    const auto unidades = static_cast<ULONGLONG>((AInstante + CSegundosDe1601A1970) * CUnidadesPorSegundo);
    const FILETIME arquivo{static_cast<DWORD>(unidades), static_cast<DWORD>(unidades >> 32)};
    SYSTEMTIME resultado{};
    ::FileTimeToSystemTime(&arquivo, &resultado);
    return resultado;
}

std::int64_t ParaInstante(const SYSTEMTIME& AHora) {
    FILETIME arquivo{};
    ::SystemTimeToFileTime(&AHora, &arquivo);
    const ULONGLONG unidades = static_cast<ULONGLONG>(arquivo.dwHighDateTime) << 32 | arquivo.dwLowDateTime;
    return static_cast<std::int64_t>(unidades) / CUnidadesPorSegundo - CSegundosDe1601A1970;
}

// The local time of AUtc under the rules that the zone has in AAno.
bool ConverterPelasRegras(USHORT AAno, const SYSTEMTIME& AUtc, SYSTEMTIME& ALocal) {
    TIME_ZONE_INFORMATION regras{};
    return ::GetTimeZoneInformationForYear(AAno, nullptr, &regras) &&
           ::SystemTimeToTzSpecificLocalTime(&regras, &AUtc, &ALocal);
}

}  // namespace

std::int32_t BuscarDeslocamentoNoInstante(std::int64_t AInstante) {
    const std::int64_t instante = std::clamp(AInstante, CDoisDias - CSegundosDe1601A1970, CUltimoInstante);
    const SYSTEMTIME utc = ParaSystemTime(instante);
    SYSTEMTIME local{};
    if (!ConverterPelasRegras(utc.wYear, utc, local)) return 0;
    // Around New Year the rules are those of the local year.
    if (local.wYear != utc.wYear && !ConverterPelasRegras(local.wYear, utc, local)) return 0;
    return static_cast<std::int32_t>(ParaInstante(local) - instante);
}

}  // namespace OryUtils::Interno
