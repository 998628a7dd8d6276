#pragma once

#include "Ambiente.hpp"

#include <string>
#include <vector>

namespace Ory {

class TOpcoes;

/// `ory versao`: what files say of themselves, or how two versions stand to each other. Texts as written on the command
/// line (UTF-8).
struct TPedidoDeVersao {
    std::vector<std::string> Arquivos{};
    std::vector<std::string> Comparar{};  // none or two: versions, or files that have one
    bool Json = false;
};
/// Exit statuses of --comparar beside stFalha, for scripts.
enum TStatusDeVersao : int { svIgual = 0, svMaior = 1, svMenor = 3 };

void DescreverVersao(TOpcoes AComando, TPedidoDeVersao& APedido);
/// Writes a card for one file, a table for several, or JSON. A file that is not there or cannot be read is told on
/// AAmbiente.Erro, and the status is stFalha; the others are shown. Raises EFalha for what asks for nothing, and for a
/// version that is none.
int MostrarVersao(const TPedidoDeVersao& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
