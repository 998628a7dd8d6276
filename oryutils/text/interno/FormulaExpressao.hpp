#pragma once

#include "oryutils/text/OryUtilsFormulas.hpp"
#include "oryutils/text/interno/FormulaErro.hpp"
#include "oryutils/text/interno/FormulaRegras.hpp"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// One operation on two numbers; division by 0 gives 0.
Extended CalcularOperacao(TOperCalc AOperador, Extended AUm, Extended AOutro) noexcept;

/// Evaluates texts without parentheses: operands and the operators between them, one kind of operator at a time.
class TExpressao {
public:
    /// 0 with AErro set when an operand is no number: the first one to have its turn.
    Extended Calcular(std::u16string_view ATexto, const TRegrasFormula& ARegras, TErroFormula& AErro);

private:
    /// An operand with the operator before it. An operand that is no number keeps its text until its turn comes.
    struct TParcela {
        Extended Valor = 0;
        std::u16string_view Texto{};
        char16_t Operador = 0;
        bool EhNumero = true;
    };

    const char16_t* LerOperando(const char16_t* AInicio, const char16_t* AFim, char16_t AOperador);
    Extended Operar(const TParcela& AEsquerda, const TParcela& ADireita) const;
    bool Recusar(const TParcela& AParcela);
    static bool EhUmNumeroSo(char16_t AOperador, Extended AValor) noexcept;
    void ReporNoFim(Extended AValor);
    void ReporTexto(char16_t AOperador, std::u16string_view ATexto);
    bool Passar(char16_t AOperador);
    bool PassarComTextos(char16_t AOperador, std::size_t AUltima, std::size_t APosicao, Extended AValor);

    TRegrasFormula FRegras;
    TErroFormula* FErro = nullptr;
    std::vector<TParcela> FParcelas;
    std::vector<TParcela> FAnteriores;
    std::deque<std::u16string> FTextos;  // of results that are no numbers to the operators
};

}  // namespace OryUtils::Interno
