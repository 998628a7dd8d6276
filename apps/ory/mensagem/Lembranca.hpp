#pragma once

#include "oryutils/ui/UnOryUtilsDialogsIOP.hpp"

#include "Ambiente.hpp"

#include <string>

namespace Ory {

class TOpcoes;

/// A question whose answer may be remembered, as written on the command line.
struct TPedidoDeLembranca {
    std::string Lembrar{};   // key; empty for none
    std::string Esquecer{};  // key; empty for none
    bool EsquecerTudo = false;
};

void DescreverLembranca(TOpcoes AComando, TPedidoDeLembranca& APedido);

/// Forgets what was asked for; false when nothing was, and a dialog is to be shown.
bool Esquecer(const TPedidoDeLembranca& APedido);

/// Asks, or takes the answer that is remembered.
OryUtils::TOryUtilsDialogsRetornoMensagemLembradaIOP PerguntarOuLembrar(
    const TPedidoDeLembranca& APedido, const OryUtils::TOryUtilsDialogsFormCustomizadoBaseIOP& AParametros);

}  // namespace Ory
