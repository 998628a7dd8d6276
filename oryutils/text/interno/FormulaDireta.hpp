#pragma once

#include "oryutils/text/interno/FormulaDecimal.hpp"
#include "oryutils/text/interno/FormulaFuncoes.hpp"
#include "oryutils/text/interno/FormulaRegras.hpp"
#include "oryutils/text/interno/FormulaVariaveis.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Evaluates in one reading the formulas whose pieces are what they seem: each operand one number of at most 15 digits,
/// each name one variable or one function, each result a number without exponent. It gives up on all others, errors
/// included, whose value depends on how the pieces meet in the text: TAvaliador resolves those step by step.
class TFormulaDireta {
public:
    explicit TFormulaDireta(TVariaveis& AVariaveis) noexcept : FVariaveis(AVariaveis) {}

    /// None when it gives up; AResolvida stays then. It takes the text in which functions and variables are numbers.
    std::optional<Extended> Calcular(std::u16string_view AFormula, const TRegrasFormula& ARegras,
                                     std::u16string* AResolvida);

private:
    static constexpr TOperCalc CSemOperador = static_cast<TOperCalc>(4);
    enum TOrigem : std::uint8_t { orLiteral, orTexto, orParentese };

    /// The formula, or what stands in one parenthesis or one function.
    struct TGrupo {
        TOperCalc Operador;      // between Atual and the operand that comes
        std::uint8_t Esperando;  // one bit for each of Esquerdas
        bool Sinal;              // a "-" belongs to the operand that comes
        bool EhFuncao;
        TFuncCalc Funcao;     // the innermost one around here
        bool FaltaSeparador;  // of that function
        TDecimal Atual;
        TDecimal Primeiro;                  // argument, once the second one is read
        std::array<TDecimal, 4> Esquerdas;  // for each operator the left operand that waits for its right one
    };

    // Each answers false to give up.
    bool LerOperando();
    bool LerNumero();
    bool LerNome();
    bool LerOperador();
    bool Abrir(bool AEhFuncao, TFuncCalc AFuncao);
    bool Fechar();
    bool Separar();
    bool Receber(TDecimal AValor, TOrigem AOrigem);
    bool ReceberComSinal(TDecimal AValor, TOrigem AOrigem);
    bool Empurrar(TDecimal AValor);
    bool Reduzir(TOperCalc AUltimo);
    bool Operar(TOperCalc AOperador, const TDecimal& AUm, TDecimal& AOutro) const;
    bool SubtrairNada(TDecimal& AValor) const;
    bool OperarPorExtended(TOperCalc AOperador, const TDecimal& AUm, TDecimal& AOutro) const;

    void Copiar(char16_t c) noexcept {
        *FEscrita = c;
        FEscrita += FFuncoesAbertas == 0;  // what functions hold does not show
    }
    /// Room for one value more, for what is still to be read, and for a name that waits to be one or the other.
    void ReservarValor() {
        if (FLimite - FEscrita < FFim - FLeitura) AumentarResolvida();
    }
    void AumentarResolvida();

    static constexpr std::size_t CProfundidade = 48;

    TVariaveis& FVariaveis;
    TRegrasFormula FRegras;
    const char16_t* FLeitura = nullptr;
    const char16_t* FFim = nullptr;
    TGrupo* FGrupo = nullptr;
    std::size_t FFuncoesAbertas = 0;
    bool FTerminou = false;
    std::u16string FResolvida;  // working room
    char16_t* FEscrita = nullptr;
    const char16_t* FLimite = nullptr;  // from here on one value may not fit
    std::array<TGrupo, CProfundidade> FGrupos{};
};

}  // namespace OryUtils::Interno
