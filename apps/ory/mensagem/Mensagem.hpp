#pragma once

#include "mensagem/Caminhos.hpp"
#include "mensagem/Entradas.hpp"
#include "mensagem/Janela.hpp"
#include "mensagem/Lembranca.hpp"
#include "mensagem/Resposta.hpp"

#include <string>
#include <vector>

namespace Ory {

class TOpcoes;

/// A dialog asked for on the command line, as it was written there (UTF-8).
struct TPedidoDeMensagem {
    std::vector<std::string> Linhas{};
    std::string Tipo{};
    std::string Titulo{};
    std::vector<std::string> Botoes{};  // name or name=caption
    std::string Padrao{};               // name of a button
    std::vector<std::string> Opcoes{};
    unsigned OpcaoPadrao = 1;  // from 1; 0 none
    bool Indice = false;       // answers the number of the option, not its text
    std::string Caixa{};
    bool CaixaAbaixo = false;
    std::string Detalhe{};
    unsigned FecharEm = 0;  // seconds; 0 never
    bool MostrarTempo = false;
    TPedidoDeJanela Janela{};
    bool Andamento = false;
    TPedidoDeLembranca Lembranca{};
    bool Perguntar = false;
    std::string Valor{};
    TPedidoDeEntrada Entrada{};
    TPedidoDeCaminhos Caminhos{};

    bool EhPergunta() const { return Perguntar || Entrada.Obrigatorio || !Entrada.BuscarOpcao().empty(); }
};

/// The options and the help of the sub-command.
void DescreverMensagem(TOpcoes AComando, TPedidoDeMensagem& APedido);

/// Shows the dialog by the toolkit in use (without a display it is asked on the terminal), writes the answer on
/// AAmbiente.Saida and gives the exit status. Raises EFalha for options that make no dialog.
int MostrarMensagem(const TPedidoDeMensagem& APedido, TAmbiente& AAmbiente);

}  // namespace Ory
