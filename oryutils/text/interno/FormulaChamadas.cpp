#include "oryutils/text/interno/FormulaChamadas.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace OryUtils::Interno {
namespace {

/// In the order of TFuncCalc. No name is the end of another one.
constexpr std::array<std::u16string_view, 8> CNomes{u"SQR", u"LOG", u"LN", u"INT", u"ABS", u"MAX", u"MIN", u"EXP"};

/// The function whose name ends ATexto.
std::optional<TFuncCalc> BuscarFuncaoNoFim(std::u16string_view ATexto) noexcept {
    for (std::size_t i = 0; i < CNomes.size(); ++i)
        if (ATexto.ends_with(CNomes[i])) return static_cast<TFuncCalc>(i);
    return std::nullopt;
}

/// A call whose ")" has not come yet.
struct TAberta {
    std::size_t Chamada = 0;
    std::size_t Parenteses = 0;  // open inside it
};

/// The call that opens at APosicao inside call AEmVolta.
TChamada Abrir(std::vector<TChamada>& AChamadas, std::size_t AEmVolta, TFuncCalc AFuncao, std::size_t APosicao) {
    TChamada& emVolta = AChamadas[AEmVolta];
    if (emVolta.Separador == TChamada::CSemSeparador && AFuncao >= emVolta.Funcao) emVolta.SeparadorDeOutra = true;
    // Call 0 is of the first kind: the search ends there at the latest.
    std::size_t dona = AEmVolta;
    while (AChamadas[dona].Funcao > AFuncao) dona = AChamadas[dona].Acima;
    return {.Funcao = AFuncao,
            .Nome = APosicao - CNomes[AFuncao].size(),
            .Argumento = APosicao + 1,
            .Dona = dona,
            .Acima = AChamadas[dona].Funcao == AFuncao ? AChamadas[dona].Acima : dona};
}

}  // namespace

std::vector<TChamada> LocalizarChamadas(std::u16string_view AFormula) {
    std::vector<TChamada> chamadas;
    chamadas.reserve(1 + static_cast<std::size_t>(std::count(AFormula.begin(), AFormula.end(), u'(')));
    chamadas.emplace_back();
    std::vector<TAberta> abertas(1);
    const auto fechar = [&](std::size_t APosicao) {
        TChamada& chamada = chamadas[abertas.back().Chamada];
        chamada.Fim = APosicao;
        chamada.Seguinte = chamadas.size();
        abertas.pop_back();
    };
    constexpr std::u16string_view CSinais = u"();";
    for (std::size_t p = 0; (p = AFormula.find_first_of(CSinais, p)) != AFormula.npos; ++p) {
        TAberta& aberta = abertas.back();
        if (AFormula[p] == u'(') {
            if (const auto funcao = BuscarFuncaoNoFim(AFormula.substr(0, p))) {
                chamadas.push_back(Abrir(chamadas, aberta.Chamada, *funcao, p));
                abertas.push_back({.Chamada = chamadas.size() - 1});
            } else {
                ++aberta.Parenteses;
            }
        } else if (AFormula[p] == u')') {
            if (aberta.Parenteses > 0)
                --aberta.Parenteses;
            else if (abertas.size() > 1)
                fechar(p);
        } else if (TChamada& chamada = chamadas[aberta.Chamada]; chamada.Separador == TChamada::CSemSeparador) {
            chamada.Separador = p;
            chamada.SeguinteAoSeparador = chamadas.size();
        }
    }
    while (!abertas.empty()) fechar(AFormula.size());
    return chamadas;
}

std::vector<TPasso> OrdenarPassos(const std::vector<TChamada>& AChamadas) {
    // For each call a list of those that it resolves, in their order; 0 ends it.
    std::vector<std::size_t> primeira(AChamadas.size(), 0);
    std::vector<std::size_t> proxima(AChamadas.size(), 0);
    for (std::size_t funcao = CNomes.size(); funcao-- > 0;) {
        for (std::size_t i = AChamadas.size() - 1; i > 0; --i) {
            if (AChamadas[i].Funcao != funcao) continue;
            proxima[i] = primeira[AChamadas[i].Dona];
            primeira[AChamadas[i].Dona] = i;
        }
    }

    std::vector<TPasso> passos;
    for (std::size_t atual = 0;;) {
        if (const std::size_t interna = primeira[atual]) {
            primeira[atual] = proxima[interna];
            passos.push_back({interna, true});
            atual = interna;
        } else {
            if (atual == 0) return passos;
            passos.push_back({atual, false});
            atual = AChamadas[atual].Dona;
        }
    }
}

}  // namespace OryUtils::Interno
