#pragma once

#include "oryutils/ui/UnOryUtilsDialogsEntradasIOP.hpp"
#include "oryutils/ui/UnOryUtilsDialogsTypes.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace OryUtils {

// The forms of PedirTexto, PedirLinhas and PedirEscolha of TOryUtilsDialogs.

bool ExecutarPedidoTexto(const TOryUtilsDialogsPedidoTextoIOP& AParametros, std::u16string& AValor,
                         const TTextosDialogos& ATextos);
bool ExecutarPedidoLinhas(const TOryUtilsDialogsPedidoLinhasIOP& AParametros, std::u16string& AValor,
                          const TTextosDialogos& ATextos);
bool ExecutarPedidoEscolha(const TOryUtilsDialogsPedidoEscolhaIOP& AParametros, std::vector<std::int32_t>& AIndices,
                           const TTextosDialogos& ATextos);

}  // namespace OryUtils
