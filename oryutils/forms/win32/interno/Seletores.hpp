#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The pickers of TToolkit, by the system's own dialogs.
std::vector<std::u16string> EscolherArquivos(const TPedidoDeCaminho& APedido);
std::vector<std::u16string> EscolherPasta(const TPedidoDeCaminho& APedido);

/// What the system leaves in its buffer: one full path; or a folder and names, each ended by a NUL, one NUL more
/// behind.
std::vector<std::u16string> LerEscolhidos(std::u16string_view ADados);

/// The filter of the file dialogs: each description and mask ends with a NUL, the list with one more.
std::u16string MontarFiltro(const std::vector<TFiltroArquivo>& AFiltros);

}  // namespace OryUtils::Interno
