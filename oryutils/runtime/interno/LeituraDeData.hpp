#pragma once

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

// The steps that the readers of typed dates and times share: groups of digits, then what the groups mean.
namespace OryUtils::Interno {

struct TNumero {
    int Valor = 0;
    int Digitos = 0;
};

/// Groups of digits of a text, in order.
struct TGrupos {
    std::array<TNumero, 4> Itens{};
    std::size_t Quantidade = 0;
};

/// Reads the whole of ATexto as one to four groups of at most eight digits. ASepara(c, n) tells whether c may stand
/// before group n (counted from 0). None when there is anything else.
template <typename TSepara>
std::optional<TGrupos> LerGrupos(std::u16string_view ATexto, TSepara ASepara) {
    constexpr int CMaiorGrupo = 8;
    TGrupos grupos;
    std::size_t i = 0;
    while (true) {
        TNumero numero;
        for (; i < ATexto.size() && EhDigito(ATexto[i]); ++i) {
            if (++numero.Digitos > CMaiorGrupo) return std::nullopt;
            numero.Valor = numero.Valor * 10 + (ATexto[i] - u'0');
        }
        if (numero.Digitos == 0) return std::nullopt;
        grupos.Itens[grupos.Quantidade++] = numero;
        if (i == ATexto.size()) return grupos;
        if (grupos.Quantidade == grupos.Itens.size() || !ASepara(ATexto[i], grupos.Quantidade)) return std::nullopt;
        ++i;
    }
}

enum TOrdemData : int { orDiaMesAno, orMesDiaAno, orAnoMesDia };

/// By the first of day, month and year in a date pattern; weekday names and literals do not count.
TOrdemData BuscarOrdemDaData(std::u16string_view APadrao);

/// The year that dates without one belong to, and around which two-digit years fall: a given one, or the clock's,
/// which is read only when it is needed.
class TAnoCorrente {
public:
    TAnoCorrente() = default;
    explicit TAnoCorrente(int AAno) : FAno(AAno) {}
    int Buscar() const { return FAno ? *FAno : DecodificarData(Hoje()).Ano; }

private:
    std::optional<int> FAno{};
};

/// A date of three groups, or of two without the year. Day and month have at most two digits, the year four; a year of
/// one or two falls in the window AJanela.
std::optional<TDateTime> MontarData(const TGrupos& AGrupos, TOrdemData AOrdem, int AJanela,
                                    const TAnoCorrente& AAnoCorrente);

/// Which half of the day a time says it is in.
enum TMetadeDoDia : int { mdNaoDita, mdManha, mdTarde };

/// Takes the mark of the twelve-hour clock, and the blanks before it, off the end of ATexto.
TMetadeDoDia RetirarMetadeDoDia(std::u16string_view& ATexto, const TFormatSettings& AFormatos);

/// A time of one to four groups: hours, minutes, seconds and milliseconds.
std::optional<TDateTime> MontarHora(const TGrupos& AGrupos, TMetadeDoDia AMetade);

}  // namespace OryUtils::Interno
