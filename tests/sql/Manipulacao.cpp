#include "oryutils/characters/Utf.hpp"
#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include "comum/Casos.hpp"

#include <span>

namespace OryUtils {
namespace {

using TSql = TOryUtilsManipulacaoSQL;

TEST(ManipulacaoSql, Separar) {
    struct TCaso {
        std::u16string_view Sql, Principal, Adicional;
        const char* Porque;
    };
    constexpr TCaso CCasos[] = {
        {u"SELECT * FROM T", u"SELECT * FROM T", u"", "no clause"},
        {u"SELECT A FROM T ORDER BY A", u"SELECT A FROM T ", u" ORDER BY A", "the blank stands in both parts"},
        {u"T\nGROUP BY A ORDER BY B", u"T\n", u"\nGROUP BY A ORDER BY B", ""},
        {u"T ORDER BY B GROUP BY A", u"T ORDER BY B ", u" GROUP BY A", "grouping wins wherever it stands"},
        {u"select * from t order by a", u"select * from t order by a", u"", "small letters are not seen"},
        {u"T ORDER  BY A", u"T ORDER  BY A", u"", "one blank exactly"},
        {u"ORDER BY A", u"ORDER BY A", u"", "at the start there is nothing to split"},
        {u"GROUP BY A ORDER BY B", u"GROUP BY A ", u" ORDER BY B", "the ordering may still be split"},
        {u"XGROUP BY A", u"X", u"XGROUP BY A", "whatever precedes it stands in both parts"},
        {u" \t\r\n", u"", u"", "blanks alone"},
    };
    TSql sql;
    const auto partes = [&] { return std::tuple(sql.GetScriptSQL(), sql.GetSQLPrincipal(), sql.GetSQLAdicional()); };
    for (const TCaso& c : CCasos) {
        sql.SetScriptSQL(c.Sql);
        EXPECT_EQ(partes(), std::tuple(c.Sql, c.Principal, c.Adicional)) << c.Porque;
    }
    sql.SetScriptSQL(u"A ORDER BY B");
    sql.Limpar();
    EXPECT_EQ(partes(), std::tuple(u"", u"", u""));
}

TEST(ManipulacaoSql, Operador) {
    Testes::Conferir<std::u16string>({
        {TSql::FormatarCondicaoComOperadorSQL(u"X = 1"), u" WHERE X = 1"},
        {TSql::FormatarCondicaoComOperadorSQL(u"where"), u" AND where"},
        {TSql::BuscarOperadorSQL(u"select * from t wHeRe x = 1"), u" AND "},
        {TSql::BuscarOperadorSQL(u"SELECT SOMEWHERE FROM T"), u" AND ", "any WHERE counts"},
        {TSql::BuscarOperadorSQL(u"WHER E, ＷＨＥＲＥ"), u" WHERE ", "full-width letters are others"},
    });
}

TEST(ManipulacaoSql, Criar) {
    EXPECT_EQ(TSql::CriarCondicaoSQL({}, u" AND "), u"");
    EXPECT_EQ(TSql::CriarCondicaoSQL({u"a"}, u" AND "), u"(a)");
    EXPECT_EQ(TSql::CriarCondicaoSQL({u"a", u"bc", u"", u"d"}, u" AND "), u"((((a) AND bc) AND ) AND d)");
}

TEST(ManipulacaoSql, Parametro) {
    struct TCaso {
        std::u16string_view Valor, Banco, Cache;
    };
    constexpr TCaso CDecimais[] = {
        {u"1.234,56", u"1234.56", u"1234,56"},
        {u"1234.56", u"1234.56", u"1234,56"},
        {u"1.234.567", u"1.234.567", u"1,234,567"},  // points alone are decimals
        {u"1.234,5,6", u"1234.5.6", u"1234,5,6"},
        {u"D'Ávila", u"D'Ávila", u"D'Ávila"},  // not doubled: a number needs no quotes
    };
    constexpr TCaso COutros[] = {
        {u"D'Ávila", u"D''Ávila", u"D'Ávila"}, {u"''", u"''''", u"''"}, {u"1.2,3", u"1.2,3", u"1.2,3"}};
    for (int ordinal = ftUnknown; ordinal <= ftSingle; ++ordinal) {
        const auto tipo = static_cast<TFieldType>(ordinal);
        const bool decimal = ordinal == 6 || ordinal == 7 || ordinal == 8 || ordinal == 37 || ordinal == 45;
        for (const TCaso& c : decimal ? std::span<const TCaso>(CDecimais) : std::span<const TCaso>(COutros)) {
            EXPECT_EQ(TSql::FormatarParametroPesquisa(c.Valor, tipo, fppPesquisaBancoDados), c.Banco) << ordinal;
            EXPECT_EQ(TSql::FormatarParametroPesquisa(c.Valor, tipo, fppPesquisaEmCache), c.Cache) << ordinal;
        }
    }
}

}  // namespace
}  // namespace OryUtils
