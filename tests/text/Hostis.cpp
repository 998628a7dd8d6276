// Any text through every operation: an answer within its rules, whatever comes in.
#include "oryutils/text/OryUtilsStrings.hpp"

#include "text/Apoio.hpp"

namespace {

using S = OryUtils::TOryUtilsStrings;
using OryUtils::Aparar;
using Testes::CHostis;
using Testes::TLista;
using Testes::TSorteio;

// Facts that hold for every text; the sanitizers watch the rest.
void VerificarTudo(const std::u16string& t, const std::u16string& u) {
    EXPECT_EQ(S::RemoverAcentos(t).size(), t.size());
    EXPECT_EQ(S::TextoEhSomenteCaracteres(t), S::TextoEhSomenteCaracteres(S::RemoverAcentos(t)));
    EXPECT_EQ(S::RemoverCaractere(t, t), u"");
    EXPECT_EQ(S::RemoverCaracteres(std::u16string_view(t), t), u"");
    EXPECT_TRUE(S::TextoEhSomenteNumerico(S::ExtrairSomenteNumeros(t)));
    EXPECT_EQ(S::LimparTexto(t, TLista{t}), u"");
    EXPECT_EQ(S::RemoverCaractereSomenteDeTextos(t, u'x').size(), Aparar(t).size());
    EXPECT_EQ(S::SubstituirMultiplosTextos(t, {t}, {u}, true), t.empty() ? t : u);
    EXPECT_EQ(S::TextoContemItemVetor(t + u, {t}, false), !t.empty());
    EXPECT_EQ(S::BuscarTextoFormatado(t, 5, u"ab").size(), 5u);
    EXPECT_LE(S::ExcluirUltimoCaractereTexto(t, u'\0').size(), t.size());
    EXPECT_LE(S::BuscarPastaDoNivelAnterior(t).size(), t.size());
    EXPECT_LE(S::ExtrairUltimaPastaDaURL(t).size(), t.size());
    EXPECT_LE(S::ExtrairTextoEntreTags(t, u).size(), t.size());
    EXPECT_EQ(S::LimparTagsHtml(S::FormatarQuebrasDeTextoHtml(t)).find_first_of(u">\r\n"), std::u16string::npos);
    EXPECT_EQ(S::ConverterBase64ParaTexto(S::ConverterTextoParaBase64(t)), t);
    EXPECT_EQ(S::FormatarInscricaoFederal(OryUtils::tiCPF, t).size(), std::max<std::size_t>(14, t.size() + 3));
    EXPECT_EQ(S::PossuiGravacaoMascara(t), S::PossuiGravacaoMascara(u"xxxx" + t) && t.size() >= 4);
    EXPECT_EQ(S::SubstituirCaracteres(t, u"a", u"\x02\x03").find(u'a'), std::u16string::npos);
    const TLista itens = S::ConverterTextoComDelimitadorParaStringList(t, u";").value();
    EXPECT_LE(itens.size(), static_cast<std::size_t>(S::BuscarQuantidadeCaractereNoTexto(t, u';')) + 1);
    const TLista parametros = S::ConverterTextoParaListaDeParametros(t).value();
    for (const std::u16string& p : parametros) EXPECT_EQ(p, Aparar(p));
    EXPECT_GE(S::ConverterListaDeParametrosParaTexto(parametros).size(), parametros.size());
}

TEST(StringsHostis, TextosCurtosAoAcaso) {
    TSorteio sorteio;
    SCOPED_TRACE(sorteio.Semente());
    for (int i = 0; i < 3000 && !testing::Test::HasFailure(); ++i)
        VerificarTudo(sorteio.Texto(CHostis, 0, 12), sorteio.Texto(CHostis, 0, 4));
}

TEST(StringsHostis, UmMegabyte) {
    TSorteio sorteio;
    SCOPED_TRACE(sorteio.Semente());
    constexpr int CUnidades = 1 << 19;
    VerificarTudo(sorteio.Texto(CHostis, CUnidades, CUnidades), sorteio.Texto(CHostis, 1000, 1000));
    for (const char16_t c : {u'a', u';', u'"', u'<', u' ', u'\r', u'\\'})
        VerificarTudo(std::u16string(CUnidades, c), u"<");
}

// Work that squares with the length would not end here: the pattern nearly fits at every place.
TEST(StringsHostis, PadraoQueQuaseCabe) {
    const std::u16string as(1 << 19, u'a');
    const std::u16string quase = std::u16string(1 << 18, u'a') + u"b";
    EXPECT_EQ(S::SubstituirMultiplosTextos(as, {quase}, {u"x"}, true), as);
    EXPECT_EQ(S::ConverterTextoComDelimitadorParaStringList(as, quase), TLista{as});
    EXPECT_EQ(S::SubstituirCaracteres(as, quase, u"x"), as);
    EXPECT_EQ(S::SubstituirCaracteres(as, as.substr(0, 9), u"x"), std::u16string(as.size() - 8, u'x') + u"aaaaaaaa");
    EXPECT_EQ(S::SubstituirCaracteres(as, u"aa", u""), u"a");
    EXPECT_EQ(S::ExtrairTextoEntreTags(as, quase), u"");
    EXPECT_EQ(S::ConverterTextoComDelimitadorParaStringList(as, as.substr(1 << 18))->size(), (1u << 18) + 2);
}

}  // namespace
