#pragma once

#include "oryutils/text/OryUtilsFormulas.hpp"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// A call of a function in the text of a formula. Positions start at 0; calls are known by their index.
struct TChamada {
    static constexpr std::size_t CSemSeparador = std::u16string_view::npos;

    TFuncCalc Funcao = fcSQR;
    std::size_t Nome = 0;                   // where the name starts
    std::size_t Argumento = 0;              // where the text behind the "(" starts
    std::size_t Fim = 0;                    // where the ")" stands; a missing one stands at the end of the formula
    std::size_t Separador = CSemSeparador;  // where the first ";" stands
    std::size_t Seguinte = 0;               // the first call that opens behind this one
    std::size_t SeguinteAoSeparador = 0;    // the first call that opens behind the ";"
    bool SeparadorDeOutra = false;          // the first ";" belongs to a call that is resolved inside this one

    std::size_t Dona = 0;   // the call that resolves this one, when it evaluates its arguments
    std::size_t Acima = 0;  // the innermost call around this one whose kind comes before its own

    Extended Primeiro = 0;  // value of the first argument
    std::u16string Valor{};
};

/// The calls of AFormula, in the order in which they open. Call 0 stands for the formula itself.
std::vector<TChamada> LocalizarChamadas(std::u16string_view AFormula);

/// A moment in the life of a call: its evaluation begins, or all calls that it resolves are done.
struct TPasso {
    std::size_t Chamada;
    bool EhInicio;
};

/// The steps that resolve all calls but call 0, in the order that the definition of formulas asks for: the formula, and
/// each call in its arguments, resolves the calls of one kind from left to right, then those of the next kind. Every
/// call inside another is done before the value of that one is computed.
std::vector<TPasso> OrdenarPassos(const std::vector<TChamada>& AChamadas);

}  // namespace OryUtils::Interno
