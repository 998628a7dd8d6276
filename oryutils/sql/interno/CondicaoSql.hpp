#pragma once

#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

namespace OryUtils::Interno {

/// The SQL word of ACondicao; empty for cfNenhum and for what is no condition.
std::u16string_view BuscarPalavra(TCondicaoFiltro ACondicao) noexcept;

/// True when ACondicao says enough to be written.
bool EstahCompleta(const TOryUtilsFiltroSql& ACondicao) noexcept;

/// Appends the text of one complete condition.
void AnexarCondicao(std::u16string& ASaida, const TOryUtilsFiltroSql& ACondicao);

}  // namespace OryUtils::Interno
