#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// The pickers of TToolkit: Qt's own dialog, in Portuguese whatever the machine speaks, in which nothing can be
/// created, renamed or deleted. The desktop's dialog would bring its own language and commands.
std::optional<std::u16string> EscolherArquivoQt(std::u16string_view APastaInicial,
                                                const std::vector<TFiltroArquivo>& AFiltros);
std::optional<std::u16string> EscolherPastaQt(std::u16string_view ATitulo, std::u16string_view APastaInicial);

}  // namespace OryUtils
