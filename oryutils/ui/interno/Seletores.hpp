#pragma once

#include "oryutils/forms/Toolkit.hpp"
#include "oryutils/ui/UnOryUtilsDialogsEntradasIOP.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// The pairs of a filter text "description|mask|description|mask"; a description without mask at the end is dropped.
std::vector<TFiltroArquivo> LerFiltro(std::u16string_view AFiltro);

/// The pickers of TOryUtilsDialogs. Raise what ExigirToolkit and the picker raise.
std::vector<std::u16string> SelecionarCaminhos(TSelecaoDeCaminho ASelecao,
                                               const TOryUtilsDialogsSelecaoIOP& AParametros);
/// The first one; empty when cancelled.
std::u16string SelecionarCaminho(TSelecaoDeCaminho ASelecao, const TOryUtilsDialogsSelecaoIOP& AParametros);

/// The system's pickers: the chosen path, empty when cancelled. Raise what ExigirToolkit raises.
std::u16string SelecionarArquivo(std::u16string_view APastaInicial, std::u16string_view AFiltro);
std::u16string SelecionarPasta(std::u16string_view ATitulo, std::u16string_view APastaInicial);

}  // namespace OryUtils
