#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/interno/ErroDeData.hpp"
#include "oryutils/runtime/interno/LeituraDeData.hpp"

#include <algorithm>

namespace OryUtils {
namespace {

using Interno::TAnoCorrente;

std::optional<TDateTime> LerData(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                 const TAnoCorrente& AAnoCorrente) {
    const auto separa = [&](char16_t c, std::size_t) { return c == AFormatos.DateSeparator; };
    const auto grupos = Interno::LerGrupos(Aparar(ATexto), separa);
    if (!grupos) return std::nullopt;
    return Interno::MontarData(*grupos, Interno::BuscarOrdemDaData(AFormatos.ShortDateFormat),
                               AFormatos.TwoDigitYearCenturyWindow, AAnoCorrente);
}

std::optional<TDateTime> LerDataHora(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                     const TAnoCorrente& AAnoCorrente) {
    const std::u16string_view texto = Aparar(ATexto);
    if (const auto data = LerData(texto, AFormatos, AAnoCorrente)) return data;
    if (const auto hora = TentarTextoParaHora(texto, AFormatos)) return hora;
    const auto branco = std::ranges::find_if(texto, EhBranco);
    const auto tamanho = static_cast<std::size_t>(branco - texto.begin());
    const auto data = LerData(texto.substr(0, tamanho), AFormatos, AAnoCorrente);
    const auto hora = TentarTextoParaHora(texto.substr(tamanho), AFormatos);
    return data && hora ? std::optional(JuntarDataHora(*data, *hora)) : std::nullopt;
}

}  // namespace

std::optional<TDateTime> TentarTextoParaData(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    return LerData(ATexto, AFormatos, TAnoCorrente());
}
std::optional<TDateTime> TentarTextoParaData(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                             int AAnoCorrente) {
    return LerData(ATexto, AFormatos, TAnoCorrente(AAnoCorrente));
}

std::optional<TDateTime> TentarTextoParaHora(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    std::u16string_view texto = Aparar(ATexto);
    const Interno::TMetadeDoDia metade = Interno::RetirarMetadeDoDia(texto, AFormatos);
    const auto separa = [&](char16_t c, std::size_t n) {
        return n < 3 ? c == AFormatos.TimeSeparator : c == u'.' || c == AFormatos.DecimalSeparator;
    };
    const auto grupos = Interno::LerGrupos(texto, separa);
    if (!grupos || grupos->Quantidade < 2) return std::nullopt;
    return Interno::MontarHora(*grupos, metade);
}

std::optional<TDateTime> TentarTextoParaDataHora(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    return LerDataHora(ATexto, AFormatos, TAnoCorrente());
}
std::optional<TDateTime> TentarTextoParaDataHora(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                                 int AAnoCorrente) {
    return LerDataHora(ATexto, AFormatos, TAnoCorrente(AAnoCorrente));
}

TDateTime TextoParaData(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    const auto data = TentarTextoParaData(ATexto, AFormatos);
    if (!data) Interno::DataInvalida(ATexto);
    return *data;
}

TDateTime TextoParaDataPadrao(std::u16string_view ATexto, TDateTime APadrao, const TFormatSettings& AFormatos) {
    return TentarTextoParaData(ATexto, AFormatos).value_or(APadrao);
}

TDateTime TextoParaHora(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    const auto hora = TentarTextoParaHora(ATexto, AFormatos);
    if (!hora) Interno::HoraInvalida(ATexto);
    return *hora;
}

}  // namespace OryUtils
