#pragma once

#include "Ambiente.hpp"

#include <string>

namespace Ory {

class TOpcoes;

/// `ory processos`: the processes of the machine.
struct TPedidoDeProcessos {
    std::string Usuario{};  // UTF-8; blank: of all users
    bool Json = false;
};
void DescreverProcessos(TOpcoes AComando, TPedidoDeProcessos& APedido);
/// Writes a table, or JSON; in the order of their numbers.
int MostrarProcessos(const TPedidoDeProcessos& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
