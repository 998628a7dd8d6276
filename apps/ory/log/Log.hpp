#pragma once

#include "Ambiente.hpp"

#include <string>

namespace OryUtils {
class TAmbienteDoLog;
}

namespace Ory {

class TOpcoes;

/// `ory log`: a process log made of the lines of the input, as written on the command line (UTF-8).
struct TPedidoDeLog {
    std::string Arquivo{};
    std::string Codificacao = "padrao";
    bool Diario = false;
    bool SomenteTexto = false;
    bool Acrescentar = false;
    bool Reescrever = false;
    bool Existente = false;
    bool Eco = false;
};
/// The sentence for a log that could not be written, with the reason as far as the file tells it now.
std::string DescreverFalhaDoLog(const std::u16string& AArquivo);

void DescreverLog(TOpcoes AComando, TPedidoDeLog& APedido);
/// Starts the log, adds the lines as they come, and finishes it at the end of the input. The file is brought up to date
/// whenever the input has nothing more for the moment. A run that ends, with the input or with its day, and could not
/// be saved is told on AAmbiente.Erro, and the status is stFalha. Raises EFalha for options that make no log.
int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente);
/// The same with the log's world handed in (tests).
int EscreverLog(const TPedidoDeLog& APedido, TAmbiente& AAmbiente, OryUtils::TAmbienteDoLog& AMundo);

}  // namespace Ory
