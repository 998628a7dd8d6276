#pragma once

#include "Ambiente.hpp"

#include <optional>
#include <string>
#include <vector>

namespace Ory {

class TOpcoes;

/// A file or folder asked for on the command line, as it was written there (UTF-8).
struct TPedidoDeCaminhos {
    bool Arquivo = false;
    bool Arquivos = false;
    bool Pasta = false;
    bool Salvar = false;
    std::string NomeSugerido{};
    std::vector<std::string> Filtros{};  // description=masks
    std::string PastaInicial{};

    int ContarPedidos() const { return Arquivo + Arquivos + Pasta + Salvar; }
};

void DescreverCaminhos(TOpcoes AComando, TPedidoDeCaminhos& APedido);

/// Shows the picker and writes the chosen paths, one a line. False when the user cancelled: nothing is written then.
/// Raises EFalha for a filter without masks.
bool PedirCaminhos(const TPedidoDeCaminhos& APedido, const std::string& ATitulo, TAmbiente& AAmbiente);

}  // namespace Ory
