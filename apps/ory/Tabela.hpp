#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Ory {

/// The rows as lines with two spaces between the columns, each as wide as its widest cell (UTF-8). The first
/// AColunasDeTexto columns stand to the left, the others are numbers. Spaces at the end of a line are left out.
std::string EscreverTabela(const std::vector<std::vector<std::string>>& ALinhas, std::size_t AColunasDeTexto);

}  // namespace Ory
