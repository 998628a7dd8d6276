#pragma once

#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The SQL word of ACondicao; empty for cfNenhum and for an ordinal without a name.
std::u16string_view BuscarPalavra(TCondicaoFiltro ACondicao) noexcept;

/// True when ACondicao names a table, a column and a condition.
bool EstahCompleta(const TOryUtilsFiltroSql& ACondicao) noexcept;

/// True when a complete condition compares with a value that was never given.
bool FaltaValor(const TOryUtilsFiltroSql& ACondicao) noexcept;

/// Appends the text of one complete condition to ASaida.
void AnexarCondicao(std::u16string& ASaida, const TOryUtilsFiltroSql& ACondicao);

/// ATexto with each apostrophe doubled, appended to ASaida.
void AnexarComApostrofosDobrados(std::u16string& ASaida, std::u16string_view ATexto);

}  // namespace OryUtils::Interno
