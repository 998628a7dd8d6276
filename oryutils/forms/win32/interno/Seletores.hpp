#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

std::optional<std::u16string> EscolherArquivo(std::u16string_view APastaInicial,
                                              const std::vector<TFiltroArquivo>& AFiltros);
std::optional<std::u16string> EscolherPasta(std::u16string_view ATitulo, std::u16string_view APastaInicial);

/// The filter of the open-file dialog: each description and mask ends with a NUL, the list with one more.
std::u16string MontarFiltro(const std::vector<TFiltroArquivo>& AFiltros);

}  // namespace OryUtils::Interno
