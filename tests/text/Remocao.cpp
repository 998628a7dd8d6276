#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "comum/Casos.hpp"
#include "text/Apoio.hpp"

#include <optional>

namespace {

using OryUtils::TCaracteres;
using OryUtils::TOryUtilsStrings;
using Testes::TSorteio;

TEST(Strings, Remocao) {
    Testes::Conferir<std::u16string>({
        {OryUtils::RemoverAcentos(u"D'Ávila"), u"D\"Avila"},
        {OryUtils::RemoverAcentos(u"Ação, pêssego, ÜBER, õÕ, ñÑýå, \u0301\U0001F600"),
         u"Acao, pessego, UBER, oO, ñÑýå, \u0301\U0001F600"},
        {OryUtils::AllTrim(u" a \t b "), u"a\tb", "only code 32"},
        {OryUtils::ClearString(u" -1.234,5/6_7- \t"), u"1234567", "the five, then the ends"},
        {OryUtils::ClearString(u" aAb ", TCaracteres{u'a'}), u"Ab", "respects case, trims"},
        {OryUtils::ClearString(u"1.2-3", u".-"), u"123", "a text names characters"},
        {OryUtils::ClearString(u"1.2-3", std::u16string(u"-.")), u"123", "of any kind"},
        {OryUtils::ClearString(u"1.2-3", {u'.', u'-'}), u"123", "characters in braces"},
        {OryUtils::ClearString(u" xaby", {u"ab", u"xy"}), u" ", "in order, each on the result; no trimming"},
        {OryUtils::ClearString(u"aAab", {u"", u"aA"}), u"ab", "an empty text occurs nowhere"},
        {OryUtils::ClearStringKeepChars(u"a\u0161b1", TCaracteres{u'1', u'a', u'\u0161'}), u"a1", "8-bit members only"},
        {OryUtils::ClearStringKeepChars(u"a1b2", u"12"), u"12", "a text names members"},
        {OryUtils::ClearStringKeepChars(u"a1b2", {u'1', u'2'}), u"12", "members in braces"},
        {OryUtils::ClearStringKeepChars(u"a1b2", {u'1'}), u"1", "one member in braces"},
        {TOryUtilsStrings::ExtrairSomenteNumeros(u"12.3a\u0661"), u"123"},
        {OryUtils::RemoverCaracter(u"BAnana", u"a"), u"BAnn", "respects case"},
        {OryUtils::RemoverCaracter(u"\u2013a\u20ACb\u2013", u"\u20AC\u2013\u2013"), u"ab", "characters above code 255"},
        {OryUtils::RemoverCaracteres({u'a'}, u"Banana"), u"Bnn"},
        {OryUtils::RemoverCaracteres(u"na", u"BANana"), u"B", "a text names them"},
        {OryUtils::RemoverCaracteres({u'É', u'a'}, u"éÉAae"), u"e", "ignores case, accents too"},
        {OryUtils::RemoverCaracterSomenteDeStrings(u" 'a,b',c ", u'x'), u"'a b',c", "the comma, whatever is asked"},
        {OryUtils::RemoverCaracterSomenteDeStrings(u"a,'b,'',c,", u','), u"a,'b '' c ", "each quote toggles"},
        {TOryUtilsStrings::SubstituirCaracteresAcentuados(u"a é.1", u"<>"), u"a<><>.1", "longer than one"},
        {TOryUtilsStrings::SubstituirCaracteresAcentuados(u"ç-ã", u""), u""},
        {OryUtils::SubstituirMultiplosTextos(u"abc", {u"a", u"b"}, {u"x"}, false), u"xc", "no partner: nothing"},
        {OryUtils::SubstituirMultiplosTextos(u"abc", {u"a", u"xb"}, {u"x", u"y"}, false), u"yc", "on the result"},
        {OryUtils::SubstituirMultiplosTextos(u"São SÃO", {u"são"}, {u"x"}, true), u"x x", "ignoring case"},
        {OryUtils::SubstituirMultiplosTextos(u"ababa", {u"aba"}, {u"x"}, false), u"xba", "occurrences do not overlap"},
        {OryUtils::SubstituirMultiplosTextos(u"aaa", {u"aa"}, {u"aab"}, false), u"aaba", "what is put in is not seen"},
        {OryUtils::SubstituirCaracteres(u"xaay", u"aa", u"b"), u"xbay", "only the first character goes"},
        {OryUtils::SubstituirCaracteres(u"aAa", u"A", u""), u"aa"},
        {OryUtils::SubstituirCaracteres(u"abc", u"", u"x"), u"abc", "an empty text occurs nowhere"},
        {OryUtils::SubstituirCaracteres(u"abc", u"x", u"xx"), u"abc", "endless only where it occurs"},
    });
}

// As the operation is described: nothing after too many steps.
std::optional<std::u16string> SubstituirDevagar(std::u16string ATexto, const std::u16string& AAntigo,
                                                const std::u16string& ANovo) {
    const std::size_t limite = 4 * ATexto.size();
    std::size_t passos = 0;
    for (std::size_t p = ATexto.find(AAntigo); p != ATexto.npos; p = ATexto.find(AAntigo)) {
        if (++passos > limite) return std::nullopt;
        ATexto.insert(p, ANovo);
        ATexto.erase(ATexto.find(AAntigo), 1);
    }
    return ATexto;
}

TEST(Strings, SubstituicaoPorPassosComoADevagar) {
    TSorteio sorteio;
    int semFim = 0;
    for (int i = 0; i < 20000; ++i) {
        const std::u16string antigo = sorteio.Texto(u"ab", 1, 5);
        const std::u16string novo = sorteio.Texto(u"abc", 0, 5);
        std::u16string texto;
        for (int n = sorteio.Numero(0, 6); n > 0; --n)
            texto += sorteio.Numero(0, 1) ? antigo.substr(sorteio.Numero(0, 3) == 0) : sorteio.Texto(u"abc", 0, 4);
        const auto esperado = SubstituirDevagar(texto, antigo, novo);
        SCOPED_TRACE(sorteio.Semente() + ": " + OryUtils::ParaUtf8(texto + u" " + antigo + u" " + novo));
        if (esperado) {
            ASSERT_EQ(OryUtils::SubstituirCaracteres(texto, antigo, novo), *esperado);
        } else {
            ++semFim;
            ASSERT_THROW(OryUtils::SubstituirCaracteres(texto, antigo, novo), OryUtils::Exception);
        }
    }
    EXPECT_GT(semFim, 100) << "the endless ones must be among what is tried";
}

}  // namespace
