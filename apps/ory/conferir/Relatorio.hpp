#pragma once

#include "conferir/Conferencia.hpp"

#include <cstdint>
#include <string>
#include <string_view>

namespace Ory {

/// The summary for people, in UTF-8: a table of the columns, then the first offenders of each with line and value.
/// ALargura  columns that a line may take; values are shortened to fit.
/// ACores  with terminal colours.
std::string EscreverRelatorio(const TResumo& AResumo, std::string_view AArquivo, int ALargura, bool ACores);

/// The summary for machines: one JSON object and a line end.
std::string EscreverRelatorioJson(const TResumo& AResumo, std::string_view AArquivo);

/// 1234567 -> "1.234.567"
std::string EscreverQuantidade(std::uint64_t AValor);

}  // namespace Ory
