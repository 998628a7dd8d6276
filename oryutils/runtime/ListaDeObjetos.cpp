#include "oryutils/runtime/ListaDeObjetos.hpp"

#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils {

std::size_t TListaDeObjetos::ConferirIndice(int AIndice) const {
    if (AIndice < 0 || AIndice >= GetCount())
        throw EListError(u"Índice fora dos limites da lista (" + InteiroParaTexto(AIndice) + u")");
    return static_cast<std::size_t>(AIndice);
}

}  // namespace OryUtils
