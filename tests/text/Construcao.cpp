#include "oryutils/text/OryUtilsStrings.hpp"

#include "comum/Casos.hpp"

#include <climits>

namespace {

using S = OryUtils::TOryUtilsStrings;
using Testes::Conferir;

TEST(Strings, Contagens) {
    Conferir<int>({
        {OryUtils::BuscarQuantidadeCaractereNoTexto(u"aAa", u'a'), 2},
        {S::BuscarQuantidadeCaractereEmSequencia(u"aaab", u'a'), 2},
        {S::BuscarQuantidadeCaractereEmSequencia(u"  a", u' '), 1, "the blanks of a text count"},
        {S::BuscarQuantidadeCaractereEmSequencia(u"   ", u' '), 0, "those of a blank text do not"},
    });
}

TEST(Strings, ConstrucaoEExtracao) {
    Conferir<std::u16string>({
        {OryUtils::GetStringFormatada(u"abc", 6, u"xy"), u"abcxyx", "the last copy is cut"},
        {OryUtils::GetStringFormatada(u"abc", 6, u""), u"abc", "nothing to fill with"},
        {OryUtils::GetStringFormatada(u"abc", INT_MIN, u"x"), u"", "cut to nothing"},
        {OryUtils::FormatarEspacoEmBranco(u"ab", 4), u"ab  "},
        {OryUtils::FormatarEspacoEmBranco(u"abc", -1), u"abc", "longer stays"},
        {OryUtils::RepetirCaracter(u'x', 3), u"xxx"},
        {S::BuscarUltimoCaractereTexto(u"ab \t"), u"b"},
        {S::BuscarUltimoCaractereTexto(u" "), u""},
        {OryUtils::StrCompleteLastChar(u'\\', u"C:\\a"), u"C:\\a\\"},
        {OryUtils::StrCompleteLastChar(u'\\', u"C:\\a\\"), u"C:\\a\\"},
        {OryUtils::StrCompleteLastChar(u'\\', u"a\\ "), u"a\\ \\", "the untrimmed text ends in a space"},
        {OryUtils::StrCompleteLastChar(u'\\', u"  "), u""},
        {S::ExcluirUltimoCaractereTexto(u"C:\\dir\\ ", u'\\'), u"C:\\dir"},
        {S::ExcluirUltimoCaractereTexto(u"C:\\dir\\ ", u'/'), u"C:\\dir\\ ", "another character: untouched"},
        {S::ExcluirUltimoCaractereTexto(u" ab c ", u'\0'), u"ab", "code 0 is any; trimmed again"},
        {S::ExcluirUltimoCaractereTexto(u"  ", u'\0'), u"  "},
        {OryUtils::GetDefaultValue(u" \r\n", u"b"), u"b"},
        {OryUtils::GetDefaultValue(u" a ", u"b"), u" a ", "not trimmed"},
        {OryUtils::BuscarPastaDoNivelAnterior(u"C:\\a\\b\\arq.txt"), u"C:\\a"},
        {OryUtils::BuscarPastaDoNivelAnterior(u"C:\\a\\b\\"), u"C:\\a", "the folder itself is named"},
        {OryUtils::BuscarPastaDoNivelAnterior(u"arq.txt"), u""},
        {OryUtils::ExtractLastDirFromUrl(u"http://www.x.com.br/ws/nfe-xml_v2.0"), u"nfexmlv20", "cleaned"},
        {OryUtils::ExtractLastDirFromUrl(u"http://www.x.com.br/ws/"), u"", "ends with a slash"},
        {OryUtils::ExtractLastDirFromUrl(u"http://www.x.com.br:80"), u":80", "no slash behind"},
        {OryUtils::ExtractLastDirFromUrl(u"a.br.br/x"), u"x", "the first .br"},
        {OryUtils::ExtractLastDirFromUrl(u"abcd"), u"cd", "no .br: from the third character"},
        {OryUtils::ExtractLastDirFromUrl(u"a/bc"), u"bc", "no .br: a slash before the third is not seen"},
        {S::ExtrairTextoEntreTags(u"<a><n x=\"1\">v</n><n>w</n>", u"n"), u"v", "the first; attributes"},
        {S::ExtrairTextoEntreTags(u"<n>v", u"n"), u"", "not closed"},
        {S::ExtrairTextoEntreTags(u"</n><n>v", u"n"), u"", "closed before it opens"},
        {S::ExtrairTextoEntreTags(u"<n <b>v</n>", u"n"), u"v", "the first > ends the tag"},
        {S::ExtrairTextoEntreTags(u"<x>v</n>", u"n"), u"v", "a missing opening tag is not noticed"},
        {S::LimparTagsHtml(u"a<b c>d</b>>e<"), u"ade", "a lone > goes too, and all behind an open <"},
        {S::FormatarQuebrasDeTextoHtml(u"a\r\nb\rc\nd"), u"<P>a</P><P>b</P><P>c</P><P>d</P>", "three kinds"},
        {S::FormatarQuebrasDeTextoHtml(u"\n\r\n"), u"<P></P><P></P>", "empty lines; nothing after the last break"},
    });
}

TEST(Strings, GravacaoDaMascara) {
    Conferir<bool>({
        {S::PossuiGravacaoMascara(u"!(999)99999-9999;1; "), true, "stored"},
        {S::PossuiGravacaoMascara(u"99999-999;0; "), false, "not stored"},
        {S::PossuiGravacaoMascara(u"9;1"), false, "fewer than four characters"},
        {S::PossuiGravacaoMascara(u"99;1"), true, "only the flag"},
        {S::PossuiGravacaoMascara(u"999;"), false, "a separator at the end"},
        {S::PossuiGravacaoMascara(u"99;1;"), true, "no blank character"},
        {S::PossuiGravacaoMascara(u"9;;;0"), true, "the second from the end"},
        {S::PossuiGravacaoMascara(u";;;;"), true, "the second from the end is followed by a separator"},
        {S::PossuiGravacaoMascara(u";999999"), false, "too far from the end"},
    });
}

TEST(Strings, InscricaoFederal) {
    using namespace OryUtils;
    Conferir<std::u16string>({
        {FormatarInscricaoFederal(tiCNPJ, u"12345678000195"), u"12.345.678/0001-95"},
        {FormatarInscricaoFederal(tiCPF, u"12345678909"), u"123.456.789-09"},
        {FormatarInscricaoFederal(tiCEI, u"123456789012"), u"12.345.67890/12"},
        {FormatarInscricaoFederal(tiCPF, u"1234"), u"123.4  .   -  ", "places without a digit"},
        {FormatarInscricaoFederal(tiCPF, u"1234567890912"), u"123.456.789-0912", "digits without a place"},
        {GetMask(tiCNPJ), u"99.999.999/9999-99;0; "},
        {GetMask(tiCPF), u"999.999.999-99;0; "},
        {GetMask(tiCEI), u"99.999.99999/99;0; "},
    });
    for (const int outro : {-1, 0, 4, 5, 6, 10, 99}) {
        EXPECT_EQ(FormatarInscricaoFederal(static_cast<TTipoInscricao>(outro), u"12a"), u"12a") << outro;
        EXPECT_EQ(GetMask(static_cast<TTipoInscricao>(outro)), u"") << outro;
    }
}

}  // namespace
