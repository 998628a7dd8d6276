#pragma once

#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/interno/FormulaErro.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace OryUtils::Interno {

/// The names in the order of TFuncCalc, without their "(".
inline constexpr std::array<std::u16string_view, 8> CNomesFuncoes{u"SQR", u"LOG", u"LN",  u"INT",
                                                                  u"ABS", u"MAX", u"MIN", u"EXP"};

constexpr bool TemDoisArgumentos(TFuncCalc AFuncao) noexcept {
    return AFuncao == fcMAX || AFuncao == fcMIN || AFuncao == fcEXP;
}

/// The function whose name ends ATexto; none when it ends otherwise.
constexpr std::optional<TFuncCalc> BuscarFuncaoNoFim(std::u16string_view ATexto) noexcept {
    for (std::size_t i = 0; i < CNomesFuncoes.size(); ++i)
        if (ATexto.ends_with(CNomesFuncoes[i])) return static_cast<TFuncCalc>(i);
    return std::nullopt;
}

Extended CalcularFuncao(TFuncCalc AFuncao, Extended AUm, Extended AOutro) noexcept;

/// The calls of a formula, in the order in which they open, and the errors that they met. The evaluator closes the
/// innermost call first; the formula is defined by another order: one kind of function after the other, each evaluating
/// its arguments in the same way. Without errors the order makes no difference. With errors the first one in the
/// defined order is the one that counts.
class TChamadas {
public:
    void Limpar() noexcept {
        FChamadas.clear();
        FErros.clear();
    }
    std::size_t Abrir(TFuncCalc AFuncao) {
        FChamadas.push_back({AFuncao, 0});
        return FChamadas.size() - 1;
    }
    void Fechar(std::size_t AChamada) noexcept { FChamadas[AChamada].Fim = FChamadas.size(); }
    /// AAntesDosArgumentos: the error comes before the functions inside the call that are still to be resolved.
    void RegistrarErro(std::size_t AChamada, bool AAntesDosArgumentos, TErroFormula AErro) {
        FErros.push_back({AChamada, AAntesDosArgumentos, std::move(AErro)});
    }
    bool TemErro() const noexcept { return !FErros.empty(); }
    const TErroFormula& BuscarPrimeiroErro() const;

private:
    struct TChamada {
        TFuncCalc Funcao;
        std::size_t Fim;  // the first call that opens after this one is closed
    };
    struct TErro {
        std::size_t Chamada;
        bool AntesDosArgumentos;
        TErroFormula Erro;
    };
    std::vector<std::size_t> BuscarDonas() const;

    std::vector<TChamada> FChamadas;
    std::vector<TErro> FErros;
};

}  // namespace OryUtils::Interno
