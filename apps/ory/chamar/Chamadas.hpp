#pragma once

#include "Ambiente.hpp"
#include "operations/Operacoes.hpp"

#include <cstddef>
#include <span>
#include <string>

namespace Ory {

/// `ory chamar OPERACAO ARGUMENTO...`: prints the result alone: a text as it is, a list one item a line, null nothing;
/// with AJson the answer of the protocol. A failure goes to stderr: status 1 when the operation raised, 2 when it was
/// called wrongly.
TStatus ChamarUma(const std::string& AOperacao, std::span<const std::string> AArgumentos, bool AJson,
                  TAmbiente& AAmbiente);

/// `ory chamar --lote`: a JSON request a line, a JSON answer a line, in the same order. The answers are flushed at the
/// end of input and whenever reading on would have to wait, so a program may ask and wait for each answer. A mark of
/// UTF-8 at the start is ignored. Every line gets an answer, the broken ones and those longer than
/// AMaiorRequisicao an error.
void ChamarEmLote(TEntrada& AEntrada, TSaida& ASaida, std::size_t AMaiorRequisicao = CMaiorRequisicao);

/// `ory operacoes`: every operation with its signature, a line each, or as a JSON list.
void ListarOperacoes(TSaida& ASaida, bool AJson);

}  // namespace Ory
