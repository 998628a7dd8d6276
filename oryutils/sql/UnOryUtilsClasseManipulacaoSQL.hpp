#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/fields/CamposTipos.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Where a search value goes: into SQL for the database, or into a filter of data that is already in memory.
enum TTipoFormatoParametroPesquisa : std::uint8_t { fppPesquisaBancoDados, fppPesquisaEmCache };

/// Adds conditions to a SELECT statement held as text. It works on the text alone: a "GROUP BY" or "WHERE" inside a
/// quoted text or a comment counts too.
class ORY_API TOryUtilsManipulacaoSQL : public TObjeto {
public:
    /// The whole statement; setting it splits it.
    const std::u16string& GetScriptSQL() const noexcept { return FScriptSQL; }
    void SetScriptSQL(std::u16string_view AValor);
    /// The statement up to its grouping or ordering clause; conditions go behind it.
    const std::u16string& GetSQLPrincipal() const noexcept { return FSQLPrincipal; }
    /// From one character before that clause to the end; empty when there is none.
    const std::u16string& GetSQLAdicional() const noexcept { return FSQLAdicional; }

    /// Empties the three texts.
    void Limpar();

    /// Splits ScriptSQL at its first "GROUP BY" or, without one, at its first "ORDER BY": capitals, one blank between
    /// the words. The character in front of the clause ends SQLPrincipal and also starts SQLAdicional:
    /// "SELECT A FROM T ORDER BY A" gives "SELECT A FROM T " and " ORDER BY A". A clause that opens the text is not
    /// seen. A text of blanks gives two empty parts.
    void SepararBlocosSQL();

    /// " WHERE " when the letters WHERE, in any case, stand nowhere in ASQL (SOMEWHERE has them), else " AND ".
    static std::u16string BuscarOperadorSQL(std::u16string_view ASQL);
    /// ATexto after the word that BuscarOperadorSQL chooses by ATexto itself: "X = 1" gives " WHERE X = 1".
    static std::u16string FormatarCondicaoComOperadorSQL(std::u16string_view ATexto);
    /// The conditions joined by AOperador (with its blanks), nested to the left: a, b and c with " AND " give
    /// "(((a) AND b) AND c)". Empty when there are none.
    static std::u16string CriarCondicaoSQL(const std::vector<std::u16string>& ACondicoes,
                                           std::u16string_view AOperador);
    /// A value that the user typed, as the search wants it. Of a decimal field (ftFloat, ftCurrency, ftBCD, ftFMTBcd,
    /// ftExtended): thousands separators go, and the decimal separator is "." for the database and "," in memory; a
    /// value with points alone has decimals, "1.234" is 1,234. Of any other field: apostrophes are doubled for the
    /// database; the quotes around it are the caller's to write. A number is not checked: what a user typed for a
    /// decimal field must be read as a number before it goes into a statement without quotes.
    /// Example: FormatarParametroPesquisa(u"1.234,56", ftCurrency, fppPesquisaBancoDados) is "1234.56".
    static std::u16string FormatarParametroPesquisa(std::u16string_view AValor, TFieldType ATipoCampo,
                                                    TTipoFormatoParametroPesquisa ATipoFormato);

private:
    std::u16string FScriptSQL{};
    std::u16string FSQLPrincipal{};
    std::u16string FSQLAdicional{};
};

}  // namespace OryUtils
