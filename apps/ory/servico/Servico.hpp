#pragma once

#include "Ambiente.hpp"

#include <string>

namespace Ory {

class TOpcoes;

/// `ory servico estado`: which service of which machine, as written on the command line (UTF-8).
struct TPedidoDeServico {
    std::string Nome{};
    std::string Maquina{};
    bool Json = false;
};
void DescreverServico(TOpcoes AComando, TPedidoDeServico& APedido);
/// Writes the state in words and the number of the process. stTudoCerto: it runs; stInvalido: it is in another state;
/// stFalha: the state cannot be told.
int MostrarServico(const TPedidoDeServico& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
