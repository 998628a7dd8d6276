#include "oryutils/runtime/DataHora.hpp"

#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/runtime/interno/Calendario.hpp"
#include "oryutils/runtime/interno/ErroDeData.hpp"
#include "oryutils/runtime/interno/InstanteLocal.hpp"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <string>

namespace OryUtils {
namespace {

// The pieces as they came: "31/2/2024".
std::u16string Citar(std::initializer_list<int> APedacos, char16_t ASeparador) {
    std::u16string texto;
    for (const int pedaco : APedacos) {
        if (!texto.empty()) texto += ASeparador;
        texto += InteiroParaTexto(pedaco);
    }
    return texto;
}

TDateTime MoverMeses(TDateTime AData, std::int64_t AMeses) {
    const TPartesData partes = DecodificarData(AData);
    const std::int64_t meses = partes.Ano * 12 + partes.Mes - 1 + AMeses;
    if (partes.Ano == 0 || meses < 12 || meses >= 10000 * 12) Interno::ForaDoIntervalo();
    const int ano = static_cast<int>(meses / 12);
    const int mes = static_cast<int>(meses % 12) + 1;
    const int dia = std::min(partes.Dia, Interno::ContarDiasNoMes(ano, mes));
    // Both parts from the same rounding: what rounds up to midnight has already moved the date.
    return Interno::Recompor({Interno::ParaDias(ano, mes, dia), Interno::Decompor(AData)->Mili});
}

}  // namespace

bool EhAnoBissexto(int AAno) noexcept { return Interno::EhBissexto(AAno); }

int BuscarDiasNoMes(int AAno, int AMes) noexcept {
    return AMes >= 1 && AMes <= 12 ? Interno::ContarDiasNoMes(AAno, AMes) : 0;
}

std::optional<TDateTime> TentarCodificarData(int AAno, int AMes, int ADia) noexcept {
    if (AAno < 1 || AAno > 9999 || ADia < 1 || ADia > BuscarDiasNoMes(AAno, AMes)) return std::nullopt;
    return TDateTime(Interno::ParaDias(AAno, AMes, ADia));
}

std::optional<TDateTime> TentarCodificarHora(int AHora, int AMinuto, int ASegundo, int AMili) noexcept {
    const auto cabe = [](int AValor, int AFim) { return AValor >= 0 && AValor < AFim; };
    if (!cabe(AHora, 24) || !cabe(AMinuto, 60) || !cabe(ASegundo, 60) || !cabe(AMili, 1000)) return std::nullopt;
    const int mili = ((AHora * 60 + AMinuto) * 60 + ASegundo) * 1000 + AMili;
    return TDateTime(static_cast<double>(mili) / Interno::CMilisPorDia);
}

TDateTime CodificarData(int AAno, int AMes, int ADia) {
    const auto data = TentarCodificarData(AAno, AMes, ADia);
    if (!data) Interno::DataInvalida(Citar({ADia, AMes, AAno}, u'/'));
    return *data;
}

TDateTime CodificarHora(int AHora, int AMinuto, int ASegundo, int AMili) {
    const auto hora = TentarCodificarHora(AHora, AMinuto, ASegundo, AMili);
    if (!hora) Interno::HoraInvalida(Citar({AHora, AMinuto, ASegundo, AMili}, u':'));
    return *hora;
}

TPartesData DecodificarData(TDateTime AData) noexcept {
    const auto valor = Interno::Decompor(AData);
    if (!valor || !valor->TemData()) return {0, 0, 0};
    return Interno::DeDias(static_cast<int>(valor->Dia));
}

TPartesHora DecodificarHora(TDateTime AData) noexcept {
    const auto valor = Interno::Decompor(AData);
    return Interno::DeMilis(valor ? valor->Mili : 0);
}

int BuscarDiaDaSemana(TDateTime AData) noexcept {
    const auto valor = Interno::Decompor(AData);
    return valor && valor->TemData() ? Interno::DiaDaSemana(valor->Dia) : 0;
}

TDateTime BuscarParteData(TDateTime AData) noexcept { return std::trunc(AData.Valor) + 0.0; }

TDateTime BuscarParteHora(TDateTime AData) noexcept {
    return std::isinf(AData.Valor) ? 0 : std::fabs(AData.Valor - std::trunc(AData.Valor));
}

TDateTime JuntarDataHora(TDateTime AData, TDateTime AHora) noexcept {
    const double dia = std::trunc(AData.Valor);
    const double hora = BuscarParteHora(AHora);
    return dia < 0 ? dia - hora : dia + hora;
}

TDateTime IncrementarMes(TDateTime AData, int AMeses) { return MoverMeses(AData, AMeses); }
TDateTime IncrementarAno(TDateTime AData, int AAnos) { return MoverMeses(AData, std::int64_t{AAnos} * 12); }

TDateTime IncrementarMilissegundos(TDateTime AData, std::int64_t AMilissegundos) noexcept {
    const auto valor = Interno::Decompor(AData);
    if (!valor) return AData;
    std::int64_t dia = valor->Dia + AMilissegundos / Interno::CMilisPorDia;
    std::int64_t mili = valor->Mili + AMilissegundos % Interno::CMilisPorDia;
    if (mili < 0) {
        mili += Interno::CMilisPorDia;
        --dia;
    } else if (mili >= Interno::CMilisPorDia) {
        mili -= Interno::CMilisPorDia;
        ++dia;
    }
    return Interno::Recompor({dia, static_cast<int>(mili)});
}

TDateTime Interno::DeInstanteLocal(const TInstanteLocal& AInstante) noexcept {
    const auto data = TentarCodificarData(AInstante.Ano, AInstante.Mes, AInstante.Dia);
    const auto hora = TentarCodificarHora(AInstante.Hora, AInstante.Minuto, AInstante.Segundo, AInstante.Milissegundo);
    return data && hora ? JuntarDataHora(*data, *hora) : TDateTime();
}

TDateTime Agora() { return Interno::DeInstanteLocal(Interno::BuscarInstanteLocal()); }
TDateTime Hoje() { return BuscarParteData(Agora()); }

}  // namespace OryUtils
