#pragma once

#include "oryutils/forms/Formulario.hpp"

namespace OryUtils {

/// What a dialog is made of, from top to bottom; null for what it does not have.
struct TPartesDoDialogo {
    TIcone* Icone = nullptr;
    TRotulo* Mensagem = nullptr;
    TMemorando* Rolagem = nullptr;  ///< stands in for a message that does not fit; created when needed
    TRotulo* RotuloDaEdicao = nullptr;
    TCaixaEdicao* Edicao = nullptr;
    TProgresso* Progresso = nullptr;  ///< the message above it takes the whole width, and two lines at least
    TRotulo* RotuloDoCorpo = nullptr;
    TControleFormulario* Corpo = nullptr;  ///< a memo or a list, which scrolls where it gets less room
    int LinhasDoCorpo = 0;
    TGrupoOpcoes* Grupo = nullptr;
    TCaixaChecagem* Caixa = nullptr;
    bool CaixaAbaixo = false;  ///< of the buttons
    TMemorando* Detalhe = nullptr;
    int LarguraMinima = 0;         ///< of the client area, dialog units
    bool TextoNaLargura = false;   ///< the message wraps at LarguraMinima
    int CrescimentoDoDetalhe = 0;  ///< out: the height that the form takes for the detail
};

/// Gives every control of a dialog its place inside the work area of its screen: the stated distances first, then
/// smaller ones, at last buttons of equal width. The message and the options scroll where they do not fit, and the
/// buttons take as many rows as they need.
void DisporDialogo(TFormulario& AFormulario, TPartesDoDialogo& APartes);

}  // namespace OryUtils
