#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "text/Apoio.hpp"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using S = OryUtils::TOryUtilsStrings;
using Testes::TLista;

int GPassos = 0;
int GFalharNoPasso = 0;
void (*GFalha)() = nullptr;
TLista GErros;

// A seam that counts the pump's runs, fails when told to and remembers the errors shown.
class StringsListas : public testing::Test {
protected:
    StringsListas() : FAnterior(OryUtils::CosturaInterface()) {
        GPassos = 0;
        GFalharNoPasso = 0;
        GErros.clear();
        OryUtils::CosturaInterface().ProcessarMensagens = [] {
            if (++GPassos == GFalharNoPasso) GFalha();
        };
        OryUtils::CosturaInterface().Erro = [](std::u16string_view AMensagem) { GErros.emplace_back(AMensagem); };
    }
    ~StringsListas() override { OryUtils::CosturaInterface() = FAnterior; }

private:
    OryUtils::TCosturaInterface FAnterior;
};

TEST_F(StringsListas, Divisao) {
    struct TCaso {
        std::u16string_view Texto, Delimitador;
        TLista Itens;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"a, b,,c,", u",", {u"a", u"b", u"", u"c"}, "trimmed; a last delimiter adds nothing"},
        {u"a;;b", u";;", {u"a", u";b"}, "only the first character of the delimiter is consumed"},
        {u"a;;;b", u";;", {u"a", u"", u";b"}, "so the next one may overlap it"},
        {u"a\r\nb", u"\r\n", {u"a", u"b"}, "trimming removes what stays of the delimiter"},
        {u"", u";", {}, "empty"},
        {u";", u";", {u""}, "one empty item before it"},
        {u"ab", u"", {u"ab"}, "an empty delimiter occurs nowhere"},
    };
    for (const TCaso& c : casos) {
        GPassos = 0;
        EXPECT_EQ(OryUtils::ConverterTextoComDelimitadorParaStringList(c.Texto, c.Delimitador), c.Itens) << c.Porque;
        EXPECT_EQ(GPassos, static_cast<int>(c.Itens.size())) << "the message loop runs once for each item";
        EXPECT_EQ(S::ConverterTextoComDelimitadorParaVetorDeStrings(c.Texto, c.Delimitador), c.Itens) << c.Porque;
    }
    EXPECT_EQ(GErros, TLista{});
}

TEST_F(StringsListas, FalhaDaDivisaoMostraErroENaoDevolveLista) {
    struct TCaso {
        void (*Falha)();
        std::u16string_view Mensagem;
    };
    const TCaso casos[] = {
        {[] { throw OryUtils::Exception(u"ação"); }, u"ação"},
        {[] { throw std::runtime_error("a\xC3\xA7"); }, u"aç"},
        {[] { OryUtils::Abort(); }, u"Operação cancelada"},
        {[] { throw 1; }, u""},
    };
    for (const TCaso& c : casos) {
        GFalha = c.Falha;
        GPassos = 0;
        GFalharNoPasso = 2;
        GErros.clear();
        EXPECT_EQ(OryUtils::ConverterTextoComDelimitadorParaStringList(u"a;b;c", u";"), std::nullopt);
        const std::u16string esperada =
            u"Erro de execução no método \"ConverterTextoComDelimitadorParaStringList\".\r\nErro ocorrido: " +
            std::u16string(c.Mensagem);
        EXPECT_EQ(GErros, TLista{esperada});
    }
    GPassos = 0;
    EXPECT_EQ(S::ConverterTextoComDelimitadorParaVetorDeStrings(u"a;b", u";"), TLista{});
}

TEST_F(StringsListas, Juncao) {
    const TLista itens{u"a", u"", u" b"};
    EXPECT_EQ(OryUtils::ConverterStringListParaTextoComDelimitador(&itens, u"--"), u"a---- b");
    EXPECT_EQ(S::ConverterVetorDeStringsParaTextoComDelimitador(itens, u";"), u"a;; b");
    EXPECT_EQ(S::ConverterVetorDeStringsParaTextoComDelimitador({}, u";"), u"");
    try {
        OryUtils::ConverterStringListParaTextoComDelimitador(nullptr, u";");
        FAIL();
    } catch (const OryUtils::Exception& falha) {
        EXPECT_EQ(falha.GetMensagem(), u"Argumento <AStringList> não está instanciado.");
    }
}

TEST_F(StringsListas, CopiasGuardamOrdemEVazios) {
    for (const TLista& lista : {TLista{}, TLista{u"", u"b", u"a", u""}}) {
        EXPECT_EQ(OryUtils::ConverterStringListParaVetorDeStrings(lista), lista);
        EXPECT_EQ(OryUtils::ConverterVetorDeStringsParaStringList(lista), lista);
        EXPECT_EQ(OryUtils::StringToStringDynArray(lista), lista);
    }
}

TEST_F(StringsListas, Parametros) {
    struct TCaso {
        std::u16string_view Texto;
        TLista Itens;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"-a \"b c\" d", {u"-a", u"b c", u"d"}, "a quote holds a token together"},
        {u"\"x y\"z", {u"x y", u"z"}, "a token ends at its closing quote"},
        {u"-x\"a b\"", {u"-xa b"}, "a quote in the middle joins what stands before it"},
        {u"a \"b c ", {u"a", u"\"b c"}, "an unclosed quote keeps the rest"},
        {u" \t a\r\n b ", {u"a", u"b"}, "any blank"},
        {u"\"a\"\"b\"", {u"a", u"b"}, "one after the other"},
        {u"", {}, "empty"},
    };
    for (const TCaso& c : casos) EXPECT_EQ(S::ConverterTextoParaListaDeParametros(c.Texto), c.Itens) << c.Porque;
}

TEST_F(StringsListas, ParametrosParaTexto) {
    EXPECT_EQ(S::ConverterListaDeParametrosParaTexto({u"-a", u"b c", u"d", u"-e", u"-f", u""}),
              u"-a \"b c\" d -e -f \"\" ");
    EXPECT_EQ(S::ConverterListaDeParametrosParaTexto({u"a", u"b"}), u"a b ");
    EXPECT_EQ(S::ConverterListaDeParametrosParaTexto({}), u"");
    const TLista chaves{u"-origem", u"C:\\Meus Dados\\a", u"-n", u"x"};
    EXPECT_EQ(S::ConverterTextoParaListaDeParametros(S::ConverterListaDeParametrosParaTexto(chaves)), chaves);
}

}  // namespace
