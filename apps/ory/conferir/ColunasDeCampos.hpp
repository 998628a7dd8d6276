#pragma once

#include "conferir/Colunas.hpp"

namespace Ory {

/// The columns that hold no registry number with a rule over bytes: addresses, dates, and what a mask describes.
bool EhColunaDeCampo(TTipoColuna ATipo);
/// The verdict on a field of such a column, trimmed and not empty.
bool ValidouColunaDeCampo(TTipoColuna ATipo, std::string_view ACampo);
/// Appends the valid field in its display form; addresses in the encoding of the file.
void EscreverCampoFormatado(std::string& ASaida, TTipoColuna ATipo, std::string_view ACampo);

}  // namespace Ory
