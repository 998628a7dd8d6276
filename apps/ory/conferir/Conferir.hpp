#pragma once

#include "Ambiente.hpp"
#include "conferir/Conferencia.hpp"

#include <string>

namespace Ory {

/// `ory conferir`, its command line read.
struct TPedidoDeConferencia {
    std::string Arquivo{};  // "-" or empty: the standard input
    std::string Saida{};    // empty: none
    std::string Log{};      // empty: none
    bool Json = false;
    bool SemCores = false;
    const TTipoColuna* Vereditos = nullptr;  // the bare stream, of this kind
    TOpcoesDeConferencia Opcoes{};
};

/// Runs it and gives the exit status. A file named by Saida is written beside it under a temporary name and renamed
/// when all went well, so it may be the input itself, and after a failure the old one stands. Log names a process log:
/// what was asked, the report or the failure. Raises EFalha, ESaidaFechada.
TStatus Conferir(const TPedidoDeConferencia& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
