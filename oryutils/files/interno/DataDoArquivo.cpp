#include "oryutils/files/interno/DataDoArquivo.hpp"

#include <chrono>

namespace OryUtils::Interno {
namespace {

using namespace std::chrono;
using Interno::TInstanteUtc;

/// Day 0 of a TDateTime.
constexpr sys_days CDiaZero = year{1899} / December / 30;

}  // namespace

TDateTime BuscarDataEmpacotada(TInstanteUtc AInstante, Interno::TFuso AFuso) {
    const seconds segundos = floor<seconds>(milliseconds(AInstante));
    // No year of four digits is out there; the zone need not be asked.
    if (abs(segundos) > days(4'000'000)) return 0;
    const sys_seconds local{segundos + seconds(AFuso(segundos.count()))};
    const sys_days dia = floor<days>(local);
    const year ano = year_month_day(dia).year();
    if (ano < year{1980} || ano > year{2107}) return 0;
    const auto hora = floor<duration<int, std::ratio<2>>>(local - dia);
    return static_cast<double>((dia - CDiaZero).count()) + hora.count() / 43200.0;
}

std::optional<TInstanteUtc> BuscarInstanteUtc(TDateTime ALocal, Interno::TFuso AFuso) {
    const TPartesData data = DecodificarData(ALocal);
    if (data.Ano == 0) return {};
    const TPartesHora hora = DecodificarHora(ALocal);
    const int deslocamento = Interno::BuscarDeslocamentoLocal(
        {data.Ano, data.Mes, data.Dia, hora.Hora, hora.Minuto, hora.Segundo, hora.Milissegundo}, AFuso);
    const sys_days dia = year{data.Ano} / data.Mes / data.Dia;
    const sys_time<milliseconds> instante = dia + hours(hora.Hora) + minutes(hora.Minuto - deslocamento) +
                                            seconds(hora.Segundo) + milliseconds(hora.Milissegundo);
    return instante.time_since_epoch().count();
}

}  // namespace OryUtils::Interno
