#pragma once

#include "Fluxos.hpp"

namespace Ory {

/// What surrounds a run of the command: the standard streams and what is known of them. Tests put texts there.
struct TAmbiente {
    TEntrada& Entrada;
    TSaida& Saida;
    TSaida& Erro;
    bool EntradaEhTerminal = false;
    bool ErroEhTerminal = false;
    bool Cores = false;  // of Saida
    int Largura = 80;
};

/// Exit statuses.
enum TStatus : int {
    stTudoCerto = 0,
    stInvalido = 1,  // conferir: something is invalid; chamar: the operation failed
    stFalha = 2,     // could not be read or written, or was asked for wrongly
};

}  // namespace Ory
