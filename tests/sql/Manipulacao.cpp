#include "oryutils/characters/Utf.hpp"
#include "oryutils/sql/UnOryUtilsClasseManipulacaoSQL.hpp"

#include <gtest/gtest.h>

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
    for (const TCaso& c : CCasos) {
        sql.SetScriptSQL(c.Sql);
        EXPECT_EQ(sql.GetScriptSQL(), c.Sql);
        EXPECT_EQ(sql.GetSQLPrincipal(), c.Principal) << c.Porque;
        EXPECT_EQ(sql.GetSQLAdicional(), c.Adicional) << c.Porque;
    }
    sql.SetScriptSQL(u"A ORDER BY B");
    sql.Limpar();
    EXPECT_TRUE(sql.GetScriptSQL().empty() && sql.GetSQLPrincipal().empty() && sql.GetSQLAdicional().empty());
}

TEST(ManipulacaoSql, Operador) {
    EXPECT_EQ(TSql::BuscarOperadorSQL(u"SELECT * FROM T"), u" WHERE ");
    EXPECT_EQ(TSql::BuscarOperadorSQL(u"select * from t wHeRe x = 1"), u" AND ");
    EXPECT_EQ(TSql::BuscarOperadorSQL(u"SELECT SOMEWHERE FROM T"), u" AND ") << "any WHERE counts";
    EXPECT_EQ(TSql::BuscarOperadorSQL(u"WHER E, ＷＨＥＲＥ"), u" WHERE ") << "full-width letters are others";
    EXPECT_EQ(TSql::FormatarCondicaoComOperadorSQL(u"X = 1"), u" WHERE X = 1");
    EXPECT_EQ(TSql::FormatarCondicaoComOperadorSQL(u"where"), u" AND where");
}

TEST(ManipulacaoSql, Criar) {
    EXPECT_EQ(TSql::CriarCondicaoSQL({}, u" AND "), u"");
    EXPECT_EQ(TSql::CriarCondicaoSQL({u"a", u"b", u"c"}, u" AND "), u"(((a) AND b) AND c)");
    std::vector<std::u16string> condicoes;
    std::u16string esperado;
    for (int i = 0; i < 50; ++i) {
        condicoes.push_back(std::u16string(static_cast<std::size_t>(i), u'x'));
        esperado = u"(" + (i ? esperado + u"|" : u"") + condicoes.back() + u")";
    }
    EXPECT_EQ(TSql::CriarCondicaoSQL(condicoes, u"|"), esperado);
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
