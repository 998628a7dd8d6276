#include "oryutils/platform/FusoHorario.hpp"

#include <chrono>

namespace OryUtils::Interno {
namespace {

// The second that AInstante would be if the zone were UTC.
std::int64_t ContarSegundos(const TInstanteLocal& AInstante) {
    const std::chrono::year_month_day data{std::chrono::year{AInstante.Ano},
                                           std::chrono::month{static_cast<unsigned>(AInstante.Mes)},
                                           std::chrono::day{static_cast<unsigned>(AInstante.Dia)}};
    const std::int64_t dias = std::chrono::sys_days{data}.time_since_epoch().count();
    return ((dias * 24 + AInstante.Hora) * 60 + AInstante.Minuto) * 60 + AInstante.Segundo;
}

}  // namespace

int BuscarDeslocamentoLocal(const TInstanteLocal& AInstante, TFuso AFuso) {
    constexpr std::int64_t CUmDia = 24 * 60 * 60;
    const std::int64_t local = ContarSegundos(AInstante);
    // No zone is a day away from UTC, and none changes twice within two days.
    const std::int32_t antes = AFuso(local - CUmDia);
    const std::int32_t depois = AFuso(local + CUmDia);
    // The offset after the change holds when it explains the local time and the one before does not.
    const bool jahMudou = AFuso(local - antes) != antes && AFuso(local - depois) == depois;
    const std::int32_t segundos = jahMudou ? depois : antes;
    return (segundos + (segundos < 0 ? -30 : 30)) / 60;
}

}  // namespace OryUtils::Interno
