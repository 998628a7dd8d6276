#include "oryutils/dates/interno/FormatosFixos.hpp"

#include "oryutils/characters/Digitos.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/interno/Calendario.hpp"

namespace OryUtils::Interno {
namespace {

using Interno::EscreverDois;
using Interno::EscreverQuatro;

// The first two parts may be day and month or month and day.
char16_t* EscreverData(char16_t* ADestino, int AUm, int AOutro, int AAno, char16_t ASeparador) {
    ADestino = EscreverDois(ADestino, AUm);
    *ADestino++ = ASeparador;
    ADestino = EscreverDois(ADestino, AOutro);
    *ADestino++ = ASeparador;
    return EscreverQuatro(ADestino, AAno);
}

char16_t* EscreverHoraMinuto(char16_t* ADestino, const TPartesHora& AHora, char16_t ASeparador) {
    ADestino = EscreverDois(ADestino, AHora.Hora);
    *ADestino++ = ASeparador;
    return EscreverDois(ADestino, AHora.Minuto);
}

}  // namespace

std::u16string FormatarPeloTipo(TTipoFormatoData ATipo, TDateTime AData, const TFormatSettings& AFormatos) {
    const std::u16string_view padrao = BuscarPadrao(ATipo);
    if (padrao.empty()) return {};
    const auto valor = Interno::Decompor(AData);
    const char16_t barra = AFormatos.DateSeparator;
    const char16_t doisPontos = AFormatos.TimeSeparator;
    // Rare cases are left to the language itself: no date, or a separator that is none.
    if (!valor || !valor->TemData() || barra == 0 || doisPontos == 0) return FormatarDataHora(padrao, AData, AFormatos);

    char16_t texto[24];
    char16_t* fim = texto;
    if (ATipo == fdHora) {
        fim = EscreverHoraMinuto(fim, Interno::DeMilis(valor->Mili), doisPontos);
        return {texto, fim};
    }
    const TPartesData data = Interno::DeDias(static_cast<int>(valor->Dia));
    if (ATipo == fdData) {
        fim = EscreverData(fim, data.Mes, data.Dia, data.Ano, barra);
        return {texto, fim};
    }
    const TPartesHora hora = Interno::DeMilis(valor->Mili);
    fim = EscreverData(fim, data.Dia, data.Mes, data.Ano, barra);
    *fim++ = u' ';
    fim = EscreverHoraMinuto(fim, hora, doisPontos);
    *fim++ = doisPontos;
    fim = EscreverDois(fim, hora.Segundo);
    return {texto, fim};
}

}  // namespace OryUtils::Interno
