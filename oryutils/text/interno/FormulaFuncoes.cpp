#include "oryutils/text/interno/FormulaFuncoes.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace OryUtils::Interno {
namespace {

constexpr std::size_t CNenhuma = static_cast<std::size_t>(-1);

}  // namespace

Extended CalcularFuncao(TFuncCalc AFuncao, Extended AUm, Extended AOutro) noexcept {
    switch (AFuncao) {
        case fcSQR:
            return std::sqrt(AUm);
        case fcLOG:
            return std::log(AUm) / std::log(10.0L);
        case fcLN:
            return std::log(AUm);
        case fcINT:
            return TOryUtilsFormulas::GetInteiro(AUm);
        case fcABS:
            return std::abs(AUm);
        case fcMAX:
            return TOryUtilsFormulas::GetMaximo(AUm, AOutro);
        case fcMIN:
            return TOryUtilsFormulas::GetMinimo(AUm, AOutro);
        case fcEXP:
            return TOryUtilsFormulas::GetExponencial(AUm, AOutro);
    }
    return 0;
}

/// For each call the call that evaluates it among its arguments: the innermost one around it that is resolved no later
/// than its own kind. The formula itself evaluates those that have none.
std::vector<std::size_t> TChamadas::BuscarDonas() const {
    struct TAberta {
        std::size_t Chamada;
        std::array<std::size_t, CNomesFuncoes.size()> UltimaDoTipo;  // around and including this one
    };
    std::vector<TAberta> abertas{{CNenhuma, {}}};
    abertas.front().UltimaDoTipo.fill(CNenhuma);
    std::vector<std::size_t> donas(FChamadas.size(), CNenhuma);
    for (std::size_t i = 0; i < FChamadas.size(); ++i) {
        while (abertas.size() > 1 && FChamadas[abertas.back().Chamada].Fim <= i) abertas.pop_back();
        TAberta aberta{i, abertas.back().UltimaDoTipo};
        for (std::size_t tipo = 0; tipo <= FChamadas[i].Funcao; ++tipo) {
            const std::size_t ultima = aberta.UltimaDoTipo[tipo];
            if (ultima != CNenhuma && (donas[i] == CNenhuma || ultima > donas[i])) donas[i] = ultima;
        }
        aberta.UltimaDoTipo[FChamadas[i].Funcao] = i;
        abertas.push_back(aberta);
    }
    return donas;
}

const TErroFormula& TChamadas::BuscarPrimeiroErro() const {
    const std::vector<std::size_t> donas = BuscarDonas();
    // The calls that each one evaluates stand together, in the order in which it does.
    std::vector<std::size_t> ordem(FChamadas.size());
    std::iota(ordem.begin(), ordem.end(), std::size_t{0});
    const auto dona_primeiro = [&](std::size_t i) { return donas[i] == CNenhuma ? 0 : donas[i] + 1; };
    std::sort(ordem.begin(), ordem.end(), [&](std::size_t a, std::size_t b) {
        return std::tuple(dona_primeiro(a), FChamadas[a].Funcao, a) <
               std::tuple(dona_primeiro(b), FChamadas[b].Funcao, b);
    });
    std::vector<std::size_t> inicio(FChamadas.size() + 2, 0);
    for (std::size_t i = 0; i < donas.size(); ++i) ++inicio[dona_primeiro(i) + 1];
    std::partial_sum(inicio.begin(), inicio.end(), inicio.begin());

    std::vector<const TErro*> antes(FChamadas.size());
    std::vector<const TErro*> depois(FChamadas.size());
    for (const TErro& erro : FErros) (erro.AntesDosArgumentos ? antes : depois)[erro.Chamada] = &erro;

    struct TVisita {
        std::size_t Chamada;
        std::size_t Proxima;  // in ordem
    };
    std::vector<TVisita> visitas{{CNenhuma, 0}};
    while (true) {
        const std::size_t chamada = visitas.back().Chamada;
        const std::size_t lugar = chamada == CNenhuma ? 0 : chamada + 1;
        if (visitas.back().Proxima < inicio[lugar + 1]) {
            const std::size_t filha = ordem[visitas.back().Proxima++];
            if (antes[filha]) return antes[filha]->Erro;
            visitas.push_back({filha, inicio[filha + 1]});
            continue;
        }
        if (chamada == CNenhuma) break;
        if (depois[chamada]) return depois[chamada]->Erro;
        visitas.pop_back();
    }
    return FErros.front().Erro;
}

}  // namespace OryUtils::Interno
