#pragma once

#include "Ambiente.hpp"

#include <string>
#include <vector>

namespace Ory {

class TOpcoes;

/// `ory documento`: what a number is, as written on the command line (UTF-8).
struct TPedidoDeDocumento {
    std::vector<std::string> Textos{};  // KIND NUMBER, NUMBER, KIND, or nothing
    std::string Uf{};
    bool Json = false;
};
void DescreverDocumento(TOpcoes AComando, TPedidoDeDocumento& APedido);
/// KIND NUMBER: whether it is valid, why not, its form and its facts. NUMBER: the kinds that it could be. KIND: the
/// rule. Nothing: the kinds. stInvalido for a number that is valid as nothing; raises EFalha for a kind that does not
/// exist.
int MostrarDocumento(const TPedidoDeDocumento& APedido, TAmbiente& AAmbiente);

/// `ory gerar`: made-up numbers for tests.
struct TPedidoDeGeracao {
    std::string Tipo{};
    std::string Uf{};
    std::size_t Quantidade = 1;
    std::string Semente{};  // an integer; empty: another one at each run
    bool ComMascara = false;
};
void DescreverGeracao(TOpcoes AComando, TPedidoDeGeracao& APedido);
/// Writes one number a line. One seed gives the same numbers everywhere.
int GerarNumeros(const TPedidoDeGeracao& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
