#pragma once

#include "Ambiente.hpp"

#include <string>

namespace CLI {
class App;
}

namespace Ory {

/// `ory log`: a process log made of the lines of the input, as written on the command line (UTF-8).
struct TPedidoDeLog {
    std::string Arquivo{};
    std::string Codificacao = "padrao";
    bool Diario = false;
    bool SomenteTexto = false;
    bool Acrescentar = false;
    bool Existente = false;
    bool Eco = false;
};
void DescreverLog(CLI::App& AComando, TPedidoDeLog& APedido);
/// Starts the log, adds the lines as they come, and finishes it at the end of the input. The file is brought up to date
/// whenever the input has nothing more for the moment. Raises EFalha for options that make no log, and at the end when
/// the last save failed.
int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
