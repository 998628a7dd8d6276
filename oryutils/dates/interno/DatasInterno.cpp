#include "oryutils/dates/interno/DatasInterno.hpp"

#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/interno/LeituraDeData.hpp"

#include <algorithm>
#include <chrono>
#include <optional>

namespace OryUtils::Interno {
namespace {

using namespace Interno;

// Day, month and year typed without separators: 4, 6 or 8 digits in the order of the formats.
std::optional<TGrupos> SepararDigitos(std::u16string_view ATexto, TOrdemData AOrdem) {
    if (ATexto.size() != 4 && ATexto.size() != 6 && ATexto.size() != 8) return std::nullopt;
    TGrupos grupos;
    const std::size_t digitosDoAno = ATexto.size() - 4;
    for (std::size_t i = 0; !ATexto.empty(); ++i) {
        const bool ehAno = digitosDoAno > 0 && i == (AOrdem == orAnoMesDia ? 0u : 2u);
        const std::size_t tamanho = ehAno ? digitosDoAno : 2;
        const auto lido = LerGrupos(ATexto.substr(0, tamanho), [](char16_t, std::size_t) { return false; });
        if (!lido) return std::nullopt;
        grupos.Itens[grupos.Quantidade++] = lido->Itens[0];
        ATexto.remove_prefix(tamanho);
    }
    return grupos;
}

std::optional<TDateTime> LerDataDigitada(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                                         const TAnoCorrente& AAnoCorrente) {
    TOrdemData ordem = BuscarOrdemDaData(AFormatos.ShortDateFormat);
    auto grupos = SepararDigitos(ATexto, ordem);
    if (!grupos) {
        grupos = LerGrupos(ATexto, [&](char16_t c, std::size_t) {
            return c == u'/' || c == u'-' || c == u'.' || c == AFormatos.DateSeparator;
        });
        if (!grupos) return std::nullopt;
        if (grupos->Quantidade == 3 && grupos->Itens[0].Digitos == 4) ordem = orAnoMesDia;
    }
    return MontarData(*grupos, ordem, AFormatos.TwoDigitYearCenturyWindow, AAnoCorrente);
}

struct THoraDigitada {
    TDateTime Hora;
    bool TemMilissegundos;
};

std::optional<THoraDigitada> LerHoraDigitada(std::u16string_view ATexto, std::size_t AMenosGrupos,
                                             const TFormatSettings& AFormatos) {
    const TMetadeDoDia metade = RetirarMetadeDoDia(ATexto, AFormatos);
    const auto grupos = LerGrupos(ATexto, [&](char16_t c, std::size_t n) {
        return c == u':' || c == AFormatos.TimeSeparator || (n == 3 && (c == u'.' || c == u','));
    });
    if (!grupos || grupos->Quantidade < AMenosGrupos) return std::nullopt;
    const auto hora = MontarHora(*grupos, metade);
    return hora ? std::optional(THoraDigitada{*hora, grupos->Quantidade == 4}) : std::nullopt;
}

std::u16string EscreverData(TDateTime AData, const TFormatSettings& AFormatos) {
    switch (BuscarOrdemDaData(AFormatos.ShortDateFormat)) {
        case orAnoMesDia:
            return FormatarDataHora(u"yyyy/mm/dd", AData, AFormatos);
        case orMesDiaAno:
            return FormatarDataHora(u"mm/dd/yyyy", AData, AFormatos);
        default:
            return FormatarDataHora(u"dd/mm/yyyy", AData, AFormatos);
    }
}

std::u16string EscreverHora(const THoraDigitada& AHora, const TFormatSettings& AFormatos) {
    return FormatarDataHora(AHora.TemMilissegundos ? u"hh:nn:ss.zzz" : u"hh:nn:ss", AHora.Hora, AFormatos);
}

std::u16string Completar(std::u16string_view ATexto, const TFormatSettings& AFormatos,
                         const TAnoCorrente& AAnoCorrente) {
    const std::u16string_view texto = Aparar(ATexto);
    if (texto.empty()) return {};
    if (const auto data = LerDataDigitada(texto, AFormatos, AAnoCorrente)) return EscreverData(*data, AFormatos);
    if (const auto hora = LerHoraDigitada(texto, 2, AFormatos)) return EscreverHora(*hora, AFormatos);
    const auto tamanho = static_cast<std::size_t>(std::ranges::find_if(texto, EhBranco) - texto.begin());
    const auto data = LerDataDigitada(texto.substr(0, tamanho), AFormatos, AAnoCorrente);
    const auto hora = LerHoraDigitada(Aparar(texto.substr(tamanho)), 1, AFormatos);
    if (!data || !hora) return std::u16string(ATexto);
    return EscreverData(*data, AFormatos) + u' ' + EscreverHora(*hora, AFormatos);
}

}  // namespace

TDateTime Deslocar(TDateTime ABase, OryTypes::TTipoMedidaTempo AMedida, int AQuantidade, TDateTime (*AAgora)()) {
    using namespace OryTypes;
    const auto somar = [&](std::chrono::milliseconds AUnidade) {
        return IncrementarMilissegundos(ABase, AUnidade.count() * AQuantidade);
    };
    switch (AMedida) {
        case tmtSegundo:
            return somar(std::chrono::seconds(1));
        case tmtMinuto:
            return somar(std::chrono::minutes(1));
        case tmtHora:
            return somar(std::chrono::hours(1));
        case tmtDia:
            return somar(std::chrono::days(1));
        case tmtMes:
            return IncrementarMes(ABase, AQuantidade);
        case tmtAno:
            return IncrementarAno(ABase, AQuantidade);
        case tmtNenhuma:
        case tmtMicrossegundo:
        case tmtMilissegundo:
            break;
    }
    return AAgora();
}

std::u16string Completar(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    return Completar(ATexto, AFormatos, TAnoCorrente());
}
std::u16string Completar(std::u16string_view ATexto, const TFormatSettings& AFormatos, int AAnoCorrente) {
    return Completar(ATexto, AFormatos, TAnoCorrente(AAnoCorrente));
}

}  // namespace OryUtils::Interno
