// What a text is made of.
#include "oryutils/text/OryUtilsStrings.hpp"

#include <gtest/gtest.h>

namespace {

using OryUtils::TOryUtilsStrings;

TEST(Strings, ClassesDeCaracteres) {
    struct TCaso {
        std::u16string_view Texto;
        bool AlfaNumerico, SomenteNumerico, SomenteCaracteres, PossuiCaracteres, PossuiNumeros, SomenteEspeciais;
        const char* Porque;
    };
    constexpr TCaso CCasos[] = {
        {u"", false, true, true, false, false, true, "empty"},
        {u"a-1", true, false, false, true, true, false, "other characters are ignored"},
        {u"123", false, true, false, false, true, false, "digits"},
        {u"12 34", false, true, false, false, true, false, "blanks are skipped"},
        {u"12\u00A034", false, false, false, false, true, false, "a no-break space is no blank"},
        {u"João", false, false, true, true, false, false, "accents are removed first only for the third"},
        {u"çã", false, false, true, false, false, true, "accented letters are not letters"},
        {u"D'Ávila", false, false, false, true, false, false, "the quote that the apostrophe becomes is no letter"},
        {u"ñ", false, false, false, false, false, true, "not in the accent table"},
        {u"\u0660\uFF11\u0431\u0141", false, false, false, false, false, true, "digits and letters of others"},
    };
    for (const TCaso& c : CCasos) {
        EXPECT_EQ(TOryUtilsStrings::TextoEhAlfaNumerico(c.Texto), c.AlfaNumerico) << c.Porque;
        EXPECT_EQ(TOryUtilsStrings::TextoEhSomenteNumerico(c.Texto), c.SomenteNumerico) << c.Porque;
        EXPECT_EQ(TOryUtilsStrings::TextoEhSomenteCaracteres(c.Texto), c.SomenteCaracteres) << c.Porque;
        EXPECT_EQ(TOryUtilsStrings::TextoPossuiCaracteres(c.Texto), c.PossuiCaracteres) << c.Porque;
        EXPECT_EQ(TOryUtilsStrings::TextoPossuiNumeros(c.Texto), c.PossuiNumeros) << c.Porque;
        EXPECT_EQ(TOryUtilsStrings::TextoPossuiSomenteCaracteresEspeciais(c.Texto), c.SomenteEspeciais) << c.Porque;
    }
}

TEST(Strings, CadaCaractereComumOuEspecial) {
    const std::u16string_view comuns = u"\b.0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const auto caractere = static_cast<char16_t>(c);
        ASSERT_EQ(OryUtils::EhCaractereAcentuadoOuEspecial(caractere), comuns.find(caractere) == comuns.npos) << c;
    }
}

TEST(Strings, Parametro) {
    EXPECT_TRUE(TOryUtilsStrings::TextoEhParametro(u"-a", u"-"));
    EXPECT_FALSE(TOryUtilsStrings::TextoEhParametro(u"--a", u"--")) << "a longer prefix never is";
    EXPECT_FALSE(TOryUtilsStrings::TextoEhParametro(u"a", u""));
    EXPECT_TRUE(TOryUtilsStrings::TextoEhParametro(u"", u""));
    EXPECT_FALSE(TOryUtilsStrings::TextoEhParametro(u"", u"-"));
}

TEST(Strings, ItemDoVetor) {
    EXPECT_TRUE(TOryUtilsStrings::TextoContemItemVetor(u"SÃO", {u"x", u"são"}, true));
    EXPECT_FALSE(TOryUtilsStrings::TextoContemItemVetor(u"SÃO JOÃO", {u"x", u"são"}, true));
    EXPECT_TRUE(TOryUtilsStrings::TextoContemItemVetor(u"SÃO JOÃO", {u"x", u"o jo"}, false));
    EXPECT_FALSE(TOryUtilsStrings::TextoContemItemVetor(u"SÃO", {u"sao"}, false)) << "accents count";
    EXPECT_FALSE(TOryUtilsStrings::TextoContemItemVetor(u"a", {}, false));
    EXPECT_FALSE(TOryUtilsStrings::TextoContemItemVetor(u"a", {u""}, false)) << "an empty text occurs nowhere";
    EXPECT_TRUE(TOryUtilsStrings::TextoContemItemVetor(u"", {u""}, true));
}

}  // namespace
