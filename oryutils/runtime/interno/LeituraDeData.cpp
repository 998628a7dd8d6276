#include "oryutils/runtime/interno/LeituraDeData.hpp"

#include "oryutils/characters/Caixa.hpp"

#include <cstdint>

namespace OryUtils::Interno {
namespace {

// Where day, month and year stand among three groups, and day and month among two.
struct TPosicoes {
    std::size_t Dia, Mes, Ano;
    std::size_t DiaSemAno, MesSemAno;
};
constexpr std::array<TPosicoes, 3> CPosicoes{{
    {0, 1, 2, 0, 1},  // orDiaMesAno
    {1, 0, 2, 1, 0},  // orMesDiaAno
    {2, 1, 0, 1, 0},  // orAnoMesDia
}};

std::optional<int> PosicionarAno(const TNumero& ANumero, int AJanela, const TAnoCorrente& AAnoCorrente) {
    if (ANumero.Digitos > 4) return std::nullopt;
    if (ANumero.Digitos > 2) return ANumero.Valor;
    const std::int64_t inicio = std::int64_t{AAnoCorrente.Buscar()} - AJanela;
    std::int64_t ano = inicio / 100 * 100 + ANumero.Valor;
    if (AJanela > 0 && ano < inicio) ano += 100;
    if (ano < 1 || ano > 9999) return std::nullopt;
    return static_cast<int>(ano);
}

}  // namespace

TOrdemData BuscarOrdemDaData(std::u16string_view APadrao) {
    char16_t aspas = 0;
    for (std::size_t i = 0; i < APadrao.size(); ++i) {
        const char16_t c = APadrao[i];
        if (aspas || c == u'\'' || c == u'"') {
            if (!aspas)
                aspas = c;
            else if (aspas == c)
                aspas = 0;
            continue;
        }
        const std::size_t fim = std::min(APadrao.find_first_not_of(c, i), APadrao.size());
        if (c == u'y' || c == u'Y') return orAnoMesDia;
        if (c == u'm' || c == u'M') return orMesDiaAno;
        if ((c == u'd' || c == u'D') && fim - i <= 2) return orDiaMesAno;
        i = fim - 1;
    }
    return orDiaMesAno;
}

std::optional<TDateTime> MontarData(const TGrupos& AGrupos, TOrdemData AOrdem, int AJanela,
                                    const TAnoCorrente& AAnoCorrente) {
    if (AGrupos.Quantidade != 2 && AGrupos.Quantidade != 3) return std::nullopt;
    const bool temAno = AGrupos.Quantidade == 3;
    const TPosicoes& posicoes = CPosicoes[AOrdem];
    const TNumero& dia = AGrupos.Itens[temAno ? posicoes.Dia : posicoes.DiaSemAno];
    const TNumero& mes = AGrupos.Itens[temAno ? posicoes.Mes : posicoes.MesSemAno];
    if (dia.Digitos > 2 || mes.Digitos > 2) return std::nullopt;
    const std::optional<int> ano = temAno ? PosicionarAno(AGrupos.Itens[posicoes.Ano], AJanela, AAnoCorrente)
                                          : std::optional(AAnoCorrente.Buscar());
    return ano ? TentarCodificarData(*ano, mes.Valor, dia.Valor) : std::nullopt;
}

TMetadeDoDia RetirarMetadeDoDia(std::u16string_view& ATexto, const TFormatSettings& AFormatos) {
    struct TMarca {
        std::u16string_view Texto;
        TMetadeDoDia Metade;
    };
    const std::array<TMarca, 6> marcas{{{AFormatos.TimeAMString, mdManha},
                                        {AFormatos.TimePMString, mdTarde},
                                        {u"am", mdManha},
                                        {u"pm", mdTarde},
                                        {u"a", mdManha},
                                        {u"p", mdTarde}}};
    for (const TMarca& marca : marcas) {
        if (marca.Texto.empty() || marca.Texto.size() > ATexto.size()) continue;
        const std::size_t resto = ATexto.size() - marca.Texto.size();
        if (!IguaisIgnorandoCaixa(ATexto.substr(resto), marca.Texto)) continue;
        ATexto = Aparar(ATexto.substr(0, resto));
        return marca.Metade;
    }
    return mdNaoDita;
}

std::optional<TDateTime> MontarHora(const TGrupos& AGrupos, TMetadeDoDia AMetade) {
    constexpr std::array<int, 4> CMaisDigitos{2, 2, 2, 3};
    for (std::size_t i = 0; i < AGrupos.Quantidade; ++i)
        if (AGrupos.Itens[i].Digitos > CMaisDigitos[i]) return std::nullopt;
    int hora = AGrupos.Itens[0].Valor;
    if (AMetade != mdNaoDita) {
        if (hora < 1 || hora > 12) return std::nullopt;
        hora = hora % 12 + (AMetade == mdTarde ? 12 : 0);
    }
    return TentarCodificarHora(hora, AGrupos.Itens[1].Valor, AGrupos.Itens[2].Valor, AGrupos.Itens[3].Valor);
}

}  // namespace OryUtils::Interno
