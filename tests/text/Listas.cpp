#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include "comum/Casos.hpp"
#include "comum/MensagemDe.hpp"
#include "text/Apoio.hpp"

#include <stdexcept>

namespace {

using S = OryUtils::TOryUtilsStrings;
using Testes::Conferir;
using Testes::TLista;

int GPassos = 0;
void (*GFalha)() = nullptr;
TLista GErros;

// A seam that counts the pump's runs, fails in the second one when told how, and remembers the errors shown.
class StringsListas : public testing::Test {
protected:
    StringsListas() {
        GFalha = [] {};
        GErros.clear();
        OryUtils::CosturaInterface().ProcessarMensagens = [] {
            if (++GPassos == 2) GFalha();
        };
        OryUtils::CosturaInterface().Erro = [](std::u16string_view AMensagem) { GErros.emplace_back(AMensagem); };
    }
    ~StringsListas() override { OryUtils::CosturaInterface() = OryUtils::BuscarCosturaPadrao(); }
};

TEST_F(StringsListas, Divisao) {
    const auto dividir = [](std::u16string_view ATexto, std::u16string_view ADelimitador) {
        GPassos = 0;
        const TLista itens = S::ConverterTextoComDelimitadorParaVetorDeStrings(ATexto, ADelimitador);
        EXPECT_EQ(GPassos, static_cast<int>(itens.size())) << "the message loop runs once for each item";
        EXPECT_EQ(OryUtils::ConverterTextoComDelimitadorParaStringList(ATexto, ADelimitador), itens);
        return itens;
    };
    Conferir<TLista>({
        {dividir(u"a, b,,c,", u","), {u"a", u"b", u"", u"c"}, "trimmed; a last delimiter adds nothing"},
        {dividir(u"a;;b", u";;"), {u"a", u";b"}, "only the first character of the delimiter is consumed"},
        {dividir(u"a;;;b", u";;"), {u"a", u"", u";b"}, "so the next one may overlap it"},
        {dividir(u"a\r\nb", u"\r\n"), {u"a", u"b"}, "trimming removes what stays of the delimiter"},
        {dividir(u"", u";"), {}, "empty"},
        {dividir(u";", u";"), {u""}, "one empty item before it"},
        {dividir(u"ab", u""), {u"ab"}, "an empty delimiter occurs nowhere"},
        {GErros, {}},
    });
}

TEST_F(StringsListas, FalhaDaDivisaoMostraErroENaoDevolveLista) {
    const std::pair<void (*)(), std::u16string_view> casos[] = {
        {[] { throw OryUtils::Exception(u"ação"); }, u"ação"},
        {[] { throw std::runtime_error("a\xC3\xA7"); }, u"aç"},
        {[] { OryUtils::Abort(); }, u"Operação cancelada"},
        {[] { throw 1; }, u""},
    };
    for (const auto& [falha, mensagem] : casos) {
        GFalha = falha;
        GPassos = 0;
        EXPECT_EQ(OryUtils::ConverterTextoComDelimitadorParaStringList(u"a;b;c", u";"), std::nullopt);
        GPassos = 0;
        EXPECT_EQ(S::ConverterTextoComDelimitadorParaVetorDeStrings(u"a;b", u";"), TLista{});
        const std::u16string esperada =
            u"Erro de execução no método \"ConverterTextoComDelimitadorParaStringList\".\r\nErro ocorrido: " +
            std::u16string(mensagem);
        EXPECT_EQ(std::exchange(GErros, {}), (TLista{esperada, esperada}));
    }
}

TEST_F(StringsListas, JuncaoECopias) {
    const TLista itens{u"a", u"", u" b"};
    EXPECT_EQ(OryUtils::ConverterStringListParaTextoComDelimitador(&itens, u"--"), u"a---- b");
    EXPECT_EQ(S::ConverterVetorDeStringsParaTextoComDelimitador(itens, u";"), u"a;; b");
    EXPECT_EQ(S::ConverterVetorDeStringsParaTextoComDelimitador({}, u";"), u"");
    EXPECT_EQ(OryUtils::ConverterStringListParaVetorDeStrings(itens), itens);
    EXPECT_EQ(OryUtils::ConverterVetorDeStringsParaStringList(itens), itens);
    EXPECT_EQ(OryUtils::StringToStringDynArray(itens), itens);
    const auto semLista = [] { OryUtils::ConverterStringListParaTextoComDelimitador(nullptr, u";"); };
    EXPECT_EQ(Testes::MensagemDe<OryUtils::Exception>(semLista), "Argumento <AStringList> não está instanciado.");
}

TEST_F(StringsListas, Parametros) {
    const auto dividir = S::ConverterTextoParaListaDeParametros;
    Conferir<std::optional<TLista>>({
        {dividir(u"-a \"b c\" d"), TLista{u"-a", u"b c", u"d"}, "a quote holds a token together"},
        {dividir(u"\"x y\"z"), TLista{u"x y", u"z"}, "a token ends at its closing quote"},
        {dividir(u"-x\"a b\""), TLista{u"-xa b"}, "a quote in the middle joins what stands before it"},
        {dividir(u"a \"b c "), TLista{u"a", u"\"b c"}, "an unclosed quote keeps the rest"},
        {dividir(u" \t a\r\n b "), TLista{u"a", u"b"}, "any blank"},
        {dividir(u"\"a\"\"b\""), TLista{u"a", u"b"}, "one after the other"},
        {dividir(u""), TLista{}, "empty"},
    });
    Conferir<std::u16string>({
        {S::ConverterListaDeParametrosParaTexto({u"-a", u"b c", u"d", u"-e", u"-f", u""}), u"-a \"b c\" d -e -f \"\" "},
        {S::ConverterListaDeParametrosParaTexto({u"a", u"b"}), u"a b "},
        {S::ConverterListaDeParametrosParaTexto({}), u""},
    });
}

}  // namespace
