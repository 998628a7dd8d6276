#include "oryutils/characters/Caixa.hpp"

#include <gtest/gtest.h>

using namespace OryUtils;

TEST(Caixa, CadaCaractereConcordaNosDoisSentidos) {
    for (unsigned i = 0; i <= 0xFFFF; ++i) {
        const auto c = static_cast<char16_t>(i);
        const char16_t maiuscula = MaiusculaDe(c);
        const char16_t minuscula = MinusculaDe(c);
        ASSERT_TRUE(c == maiuscula || c == minuscula) << i;
        ASSERT_EQ(MinusculaDe(maiuscula), minuscula) << i;
        ASSERT_EQ(MaiusculaDe(minuscula), maiuscula) << i;
    }
}

TEST(Caixa, LetrasConhecidas) {
    EXPECT_EQ(MaiusculaDe(u"áàâãäéêíóôõúüçñÿœšžőł αωάώ абвяё ｚ ß×÷1ıİ"),
              u"ÁÀÂÃÄÉÊÍÓÔÕÚÜÇÑŸŒŠŽŐŁ ΑΩΆΏ АБВЯЁ Ｚ ß×÷1ıİ");
    EXPECT_EQ(MinusculaDe(u"AÇÃO × ŽŸ"), u"ação × žÿ");
    EXPECT_TRUE(IguaisIgnorandoCaixa(u"São", u"SÃO"));
    EXPECT_FALSE(IguaisIgnorandoCaixa(u"São", u"SÃOS"));
}
