#include "oryutils/runtime/ListaDeObjetos.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils {

void TListaDeObjetos::RecusarIndice(int AIndice) {
    throw EListError(u"Índice fora dos limites da lista (" + InteiroParaTexto(AIndice) + u")");
}

}  // namespace OryUtils
