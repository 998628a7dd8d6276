#pragma once

#include "oryutils/runtime/DataHora.hpp"

#include <cmath>
#include <cstdint>
#include <optional>

// The calendar in integers, inline: formatting dates stands on it. The Gregorian rules count backwards without a break
// (no Julian calendar).
namespace OryUtils::Interno {

inline constexpr int CMilisPorDia = 24 * 60 * 60 * 1000;

// Days of 0001-01-01 and 9999-12-31 counted from 1899-12-30.
inline constexpr int CPrimeiroDia = -693593;
inline constexpr int CUltimoDia = 2958465;

// Days from 0000-03-01 to 1899-12-30. Years that start in March have the leap day at their end.
inline constexpr int CDiasDeMarcoZero = 693899;

constexpr bool EhBissexto(int AAno) { return AAno % 4 == 0 && (AAno % 100 != 0 || AAno % 400 == 0); }

constexpr int ContarDiasNoMes(int AAno, int AMes) {
    if (AMes == 2) return EhBissexto(AAno) ? 29 : 28;
    return 30 + ((AMes + (AMes >> 3)) & 1);  // 31, 30, 31, ... and again from August on
}

// AAno 1 to 9999, AMes 1 to 12, ADia of that month.
constexpr int ParaDias(int AAno, int AMes, int ADia) {
    const int ano = AMes <= 2 ? AAno - 1 : AAno;
    const int mesDesdeMarco = AMes <= 2 ? AMes + 9 : AMes - 3;
    const int diaDoAno = (153 * mesDesdeMarco + 2) / 5 + ADia - 1;
    return ano * 365 + ano / 4 - ano / 100 + ano / 400 + diaDoAno - CDiasDeMarcoZero;
}

// ADias between CPrimeiroDia and CUltimoDia. Divisions by the lengths of 4 years and of a month are multiplications by
// scaled reciprocals, exact over the days of a century and of a year.
constexpr TPartesData DeDias(int ADias) {
    constexpr std::uint32_t CDiasDe400Anos = 146097;
    constexpr std::uint64_t CReciprocoDe4Anos = 2939745;  // 2^32 / 1461, rounded up
    const std::uint32_t quartos = 4 * static_cast<std::uint32_t>(ADias + CDiasDeMarcoZero) + 3;
    const std::uint32_t seculo = quartos / CDiasDe400Anos;
    const std::uint64_t produto = CReciprocoDe4Anos * (quartos % CDiasDe400Anos | 3);
    const auto anoDoSeculo = static_cast<std::uint32_t>(produto >> 32);
    const auto diaDoAno = static_cast<std::uint32_t>((produto & 0xFFFFFFFF) / CReciprocoDe4Anos / 4);
    const std::uint32_t meses = 2141 * diaDoAno + 197913;  // 2^16 * 5 / 153 a day, March as month 3
    const bool anoSeguinte = diaDoAno >= 306;              // January and February
    return {static_cast<int>(seculo * 100 + anoDoSeculo + (anoSeguinte ? 1 : 0)),
            static_cast<int>((meses >> 16) - (anoSeguinte ? 12 : 0)), static_cast<int>((meses & 0xFFFF) / 2141 + 1)};
}

static_assert(ParaDias(1899, 12, 30) == 0 && ParaDias(1970, 1, 1) == 25569);
static_assert(ParaDias(1, 1, 1) == CPrimeiroDia && ParaDias(9999, 12, 31) == CUltimoDia);
static_assert(DeDias(CPrimeiroDia) == TPartesData{1, 1, 1} && DeDias(CUltimoDia) == TPartesData{9999, 12, 31});

// A date-time in whole units: the day counted from 1899-12-30 and the millisecond of that day.
struct TDiaEMili {
    std::int64_t Dia;
    int Mili;

    constexpr bool TemData() const { return Dia >= CPrimeiroDia && Dia <= CUltimoDia; }
};

// Rounds to the millisecond; what rounds up to midnight is the next day. None for a value that has no time of day any
// more (not a number, infinite, or more than a hundred million days away).
inline std::optional<TDiaEMili> Decompor(TDateTime AData) {
    constexpr double CLimite = 1e8;
    const double valor = AData;
    if (!(valor > -CLimite && valor < CLimite)) return std::nullopt;
    const auto dia = static_cast<std::int32_t>(valor);
    const double fracao = std::fabs(valor - dia);
    const int mili = static_cast<int>(fracao * CMilisPorDia + 0.5);
    if (mili == CMilisPorDia) return TDiaEMili{dia + 1, 0};
    return TDiaEMili{dia, mili};
}

inline TDateTime Recompor(const TDiaEMili& AValor) {
    return JuntarDataHora(static_cast<double>(AValor.Dia), static_cast<double>(AValor.Mili) / CMilisPorDia);
}

constexpr TPartesHora DeMilis(int AMili) {
    const int segundos = AMili / 1000;
    return {segundos / 3600, segundos / 60 % 60, segundos % 60, AMili % 1000};
}

// 1 = Sunday to 7 = Saturday. Day 0 was a Saturday.
constexpr int DiaDaSemana(std::int64_t ADia) { return static_cast<int>(((ADia - 1) % 7 + 7) % 7) + 1; }

}  // namespace OryUtils::Interno
