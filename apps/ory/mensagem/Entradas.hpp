#pragma once

#include "Ambiente.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace Ory {

class TOpcoes;

/// A text, a password, lines or items asked for on the command line, as it was written there (UTF-8).
struct TPedidoDeEntrada {
    std::string Tipo{};  // name of a kind
    std::string Mascara{};
    bool Senha = false;
    bool Linhas = false;
    std::vector<std::string> Lista{};
    bool Varios = false;
    bool Obrigatorio = false;

    /// The first option of a request that was written; empty for none.
    std::string_view BuscarOpcao() const;
};

void DescreverEntradas(TOpcoes AComando, TPedidoDeEntrada& APedido);

/// Raises EFalha for options that make no request.
void ConferirEntrada(const TPedidoDeEntrada& APedido);

/// Asks, and writes what was answered: a text, each line of it, each chosen item or (AIndices) its number from 1. False
/// when the user cancelled: nothing is written then. Raises EFalha for a kind, a mask or an item that there is not.
/// AValor  the text offered; of a list, the item chosen beforehand; empty for none
bool PedirEntrada(const TPedidoDeEntrada& APedido, const std::string& ATitulo, std::u16string_view APergunta,
                  const std::string& AValor, bool AIndices, TAmbiente& AAmbiente);

}  // namespace Ory
