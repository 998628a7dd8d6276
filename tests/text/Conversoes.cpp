#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "text/Apoio.hpp"

#include <gtest/gtest.h>

#include <set>

namespace {

using S = OryUtils::TOryUtilsStrings;
using Testes::CHostis;
using Testes::TSorteio;

TEST(Strings, Base64Conhecido) {
    struct TCaso {
        std::u16string_view Texto, Base64;
    };
    constexpr TCaso CCasos[] = {
        {u"", u""},
        {u"f", u"Zg=="},
        {u"fo", u"Zm8="},
        {u"foo", u"Zm9v"},
        {u"fooba", u"Zm9vYmE="},
        {u"Ação", u"QcOnw6Nv"},
        {u"\U0001F600>?", u"8J+YgD4/"},
    };
    for (const TCaso& c : CCasos) {
        EXPECT_EQ(S::ConverterTextoParaBase64(c.Texto), c.Base64);
        EXPECT_EQ(S::ConverterBase64ParaTexto(c.Base64), c.Texto);
    }
    EXPECT_EQ(S::ConverterBase64ParaTexto(u"Zm9v\r\nYm\nE=\r\n"), u"fooba") << "lines as mail breaks them";
    EXPECT_EQ(S::ConverterBase64ParaTexto(u"gO2g"), u"\uFFFD\uFFFD\uFFFD") << "bytes that are not UTF-8";
}

TEST(Strings, Base64Recusado) {
    for (const std::u16string_view texto : {u"Zg", u"Zg=", u"Zg===", u"Z", u"Z===", u"=", u"====", u"Zm9v=",
                                            u"Zg==Zg==", u"Zm 9v", u"Zm-_", u"Zm9\u00E9", u"Zm9\uFF10", u"Z=g="})
        EXPECT_THROW(S::ConverterBase64ParaTexto(texto), OryUtils::EConvertError) << OryUtils::ParaUtf8(texto);
    try {
        S::ConverterBase64ParaTexto(u"Zm*v");
        FAIL();
    } catch (const OryUtils::EConvertError& falha) {
        EXPECT_EQ(falha.GetMensagem(), u"O texto não está em Base64: caractere inválido na posição 3.");
    }
}

TEST(Strings, Base64VaiEVolta) {
    TSorteio sorteio;
    for (int i = 0; i < 20000; ++i) {
        const std::u16string texto = sorteio.Texto(CHostis, 0, 20);
        ASSERT_EQ(S::ConverterBase64ParaTexto(S::ConverterTextoParaBase64(texto)), texto) << sorteio.Semente();
    }
    for (unsigned c = 0; c <= 0xFFFF; ++c) {
        const std::u16string texto(1, static_cast<char16_t>(c));
        ASSERT_EQ(S::ConverterBase64ParaTexto(S::ConverterTextoParaBase64(texto)), texto) << c;
    }
}

TEST(Strings, GuidNovo) {
    constexpr std::u16string_view CForma = u"{XXXXXXXX-XXXX-4XXX-VXXX-XXXXXXXXXXXX}";
    std::set<std::u16string> vistos;
    for (int i = 0; i < 500; ++i) {
        const std::u16string guid = OryUtils::GetNewGuid();
        ASSERT_EQ(guid.size(), CForma.size());
        for (std::size_t j = 0; j < guid.size(); ++j) {
            const std::u16string_view aceitos = CForma[j] == u'X'   ? u"0123456789ABCDEF"
                                                : CForma[j] == u'V' ? u"89AB"
                                                                    : CForma.substr(j, 1);
            ASSERT_NE(aceitos.find(guid[j]), aceitos.npos) << OryUtils::ParaUtf8(guid);
        }
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
