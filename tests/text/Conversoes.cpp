#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "comum/MensagemDe.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <regex>
#include <set>

namespace {

using S = OryUtils::TOryUtilsStrings;

TEST(Strings, Base64VaiEVolta) {
    constexpr std::pair<std::u16string_view, std::u16string_view> CCasos[] = {{u"", u""},
                                                                              {u"f", u"Zg=="},
                                                                              {u"fo", u"Zm8="},
                                                                              {u"fooba", u"Zm9vYmE="},
                                                                              {u"Ação>?", u"QcOnw6NvPj8="},
                                                                              {u"\U0001F600", u"8J+YgA=="}};
    for (const auto& [texto, base64] : CCasos) {
        EXPECT_EQ(S::ConverterTextoParaBase64(texto), base64);
        EXPECT_EQ(S::ConverterBase64ParaTexto(base64), texto);
    }
    EXPECT_EQ(S::ConverterBase64ParaTexto(u"Zm9v\r\nYm\nE=\r\n"), u"fooba") << "lines as mail breaks them";
    EXPECT_EQ(S::ConverterBase64ParaTexto(u"gO2g"), u"\uFFFD\uFFFD\uFFFD") << "bytes that are not UTF-8";
    // Every code unit, backwards so that no two make a pair; pairs are among the hostile texts.
    std::u16string todas(0x10000, u'\0');
    std::iota(todas.rbegin(), todas.rend(), u'\0');
    EXPECT_EQ(S::ConverterBase64ParaTexto(S::ConverterTextoParaBase64(todas)), todas);
}

TEST(Strings, Base64Recusado) {
    for (const std::u16string_view texto : {u"Zg", u"Zg=", u"Zg===", u"Z", u"Z===", u"=", u"====", u"Zm9v=",
                                            u"Zg==Zg==", u"Zm 9v", u"Zm-_", u"Zm9\u00E9", u"Zm9\uFF10", u"Z=g="})
        EXPECT_THROW(S::ConverterBase64ParaTexto(texto), OryUtils::EConvertError) << OryUtils::ParaUtf8(texto);
    EXPECT_EQ(Testes::MensagemDe([] { S::ConverterBase64ParaTexto(u"Zm*v"); }),
              "O texto não está em Base64: caractere inválido na posição 3.");
}

TEST(Strings, GuidNovo) {
    const std::regex forma("\\{[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}\\}");
    std::set<std::string> vistos;
    for (int i = 0; i < 500; ++i) {
        const std::string guid = OryUtils::ParaUtf8(OryUtils::GetNewGuid());
        ASSERT_TRUE(std::regex_match(guid, forma)) << guid;
        ASSERT_TRUE(vistos.insert(guid).second);
    }
}

TEST(Strings, VetorDeCaracteres) {
    const auto vazio = OryUtils::ConverterTextoParaVetorDeCaracteres(u"ab");
    EXPECT_EQ(std::u16string_view(vazio->data(), 3), std::u16string_view(u"ab\0", 3));
    EXPECT_EQ(std::u16string_view(vazio->data(), vazio->size()).find_last_not_of(u'\0'), 1u);
    const auto cheio = OryUtils::ConverterTextoParaVetorDeCaracteres(std::u16string(70000, u'x'));
    EXPECT_EQ(cheio->back(), u'x') << "what does not fit is left out";
}

TEST(Strings, TeclaVirtual) {
    // What a key gives depends on the machine's keyboard; that it gives at most one character does not.
    for (unsigned tecla = 0; tecla <= 0x1FF; ++tecla)
        EXPECT_LE(OryUtils::ConverterTeclaVirtualParaCaractere(static_cast<std::uint16_t>(tecla)).size(), 1u) << tecla;
    constexpr std::uint16_t CTeclaShift = 0x10;
    EXPECT_EQ(OryUtils::ConverterTeclaVirtualParaCaractere(CTeclaShift), u"");
    EXPECT_EQ(OryUtils::ConverterTeclaVirtualParaCaractere(0xFFFF), u"");
    const std::u16string a = OryUtils::ConverterTeclaVirtualParaCaractere(u'A');
    EXPECT_TRUE(a.empty() || a == u"a" || a == u"A" || a == u"\x01") << OryUtils::ParaUtf8(a);
}

}  // namespace
