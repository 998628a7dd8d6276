#pragma once

#include "Ambiente.hpp"

#include <string>
#include <vector>

namespace Ory {

class TOpcoes;

/// `ory formula`: one formula with its variables, as written on the command line (UTF-8).
struct TPedidoDeFormula {
    std::string Expressao{};
    std::vector<std::string> Variaveis{};  // NAME=VALUE
    std::string Ajuste = "nenhum";
    unsigned Casas = 2;
};
void DescreverFormula(TOpcoes AComando, TPedidoDeFormula& APedido);
/// Writes the resolved expression, " = " and the value. Raises EFalha for what is no variable; what the formula itself
/// gets wrong is said on AAmbiente.Erro with the status stInvalido.
int MostrarFormula(const TPedidoDeFormula& APedido, TAmbiente& AAmbiente);

/// `ory extenso`: amounts of the command line or, without any, one a line from the input.
struct TPedidoDeExtenso {
    std::vector<std::string> Valores{};
};
void DescreverExtenso(TOpcoes AComando, TPedidoDeExtenso& APedido);
/// Writes one line for each amount; an empty one, and a word on AAmbiente.Erro, for what is no amount (stInvalido).
int MostrarExtenso(const TPedidoDeExtenso& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
