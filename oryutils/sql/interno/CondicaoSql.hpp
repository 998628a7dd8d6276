#pragma once

#include "oryutils/sql/UnOryUtilsClasseFiltroSql.hpp"
#include "oryutils/sql/interno/TextoSql.hpp"

namespace OryUtils::Interno {

/// The SQL word of ACondicao; empty for cfNenhum and for what is no condition.
std::u16string_view BuscarPalavra(TCondicaoFiltro ACondicao) noexcept;

/// True when ACondicao says enough to be written.
inline bool EstahCompleta(const TOryUtilsFiltroSql& ACondicao) noexcept {
    return !ACondicao.GetTabela().empty() && !ACondicao.GetCampo().empty() && ACondicao.GetCondicao() > cfNenhum &&
           ACondicao.GetCondicao() <= cfDiferente;
}

/// Appends AJuncao and the text of one complete condition.
void AnexarCondicao(TTextoSql& ASaida, const TPedacoSql& AJuncao, const TOryUtilsFiltroSql& ACondicao);

}  // namespace OryUtils::Interno
