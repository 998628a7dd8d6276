#include "oryutils/readers/LinhaDeComando.hpp"

#include <gtest/gtest.h>

namespace OryUtils::Interno {
namespace {

TEST(LinhaDeComando, SeparaComoOWindows) {
    const std::tuple<std::u16string_view, std::vector<std::u16string>, const char*> casos[] = {
        {u"", {}, "nothing"},
        {u"arp", {u"arp"}, "a program alone"},
        {u"arp -a\t10.0.0.1  ", {u"arp", u"-a", u"10.0.0.1"}, "blanks and tabs separate, those at the end do nothing"},
        {u" arp", {u"", u"arp"}, "a blank in front ends an empty program"},
        {u"\"C:\\a b\\p.exe\" x", {u"C:\\a b\\p.exe", u"x"}, "a quoted program"},
        {u"\"p\\\" x", {u"p\\", u"x"}, "a backslash does not shield the quote of the program"},
        {u"a\"b c\" d", {u"a\"b", u"c d"}, "a quote inside the program is a character, so the next one opens"},
        {u"p \"a b\" c\"d e\"f", {u"p", u"a b", u"cd ef"}, "a quoted part anywhere in an argument"},
        {u"p \"\" x", {u"p", u"", u"x"}, "an empty argument"},
        {u"p \"a b", {u"p", u"a b"}, "a quote never closed"},
        {u"p a\\b\\\\c", {u"p", u"a\\b\\\\c"}, "backslashes away from quotes"},
        {u"p a\\\"b", {u"p", u"a\"b"}, "1 backslash: a quote of the text"},
        {u"p \"a\\\\\" b", {u"p", u"a\\", u"b"}, "2 backslashes: one, and the quote closes"},
        {u"p a\\\\\\\"b", {u"p", u"a\\\"b"}, "3 backslashes: one and a quote of the text"},
        {u"p \"a\"\"b c", {u"p", u"a\"b", u"c"}, "two quotes inside: a quote of the text, and the part ends"},
        {u"p \"a\"\"\" b", {u"p", u"a\" b"}, "three quotes inside: the third one opens again"},
    };
    for (const auto& [linha, esperado, porque] : casos) EXPECT_EQ(SepararLinhaDeComando(linha), esperado) << porque;
}

}  // namespace
}  // namespace OryUtils::Interno
