#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/MotivoRecusa.hpp"

#include "registry_numbers/IELenta.hpp"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace OryUtils {
namespace {

TMotivoRecusa Conferir(std::u16string_view AIE, std::u16string_view AUF) {
    TOryUtilsValidacoesIE ie;
    ie.SetUF(AUF);
    ie.SetIE(AIE);
    ie.Validar();
    EXPECT_EQ(ie.GetValido(), ValidouIE(AIE, AUF));
    return ie.GetMotivo();
}

struct TUnidadeDeTeste {
    std::u16string UF;
    std::vector<std::size_t> Tamanhos;
    std::vector<std::u16string> Inicios;  // some that the rule accepts and the edges of its ranges
};
const TUnidadeDeTeste CUnidades[] = {
    {u"AC", {13, 9}, {u"01"}},
    {u"AL", {9}, {u"24"}},
    {u"AM", {9}, {u"04"}},
    {u"AP", {9}, {u"03", u"0300000", u"0301700", u"0301902"}},
    {u"BA", {8, 9, 7, 14}, {u"6", u"7", u"9", u"0", u"8", u"00", u"000000"}},
    {u"CE", {9}, {u"0"}},
    {u"DF", {13}, {u"07"}},
    {u"ES", {9}, {}},
    {u"GO", {9}, {u"101031", u"101199", u"1011"}},
    {u"MA", {9}, {u"12"}},
    {u"MG", {13}, {}},
    {u"MS", {9}, {u"28"}},
    {u"MT", {11, 9}, {u"00"}},
    {u"PA", {9}, {u"15"}},
    {u"PB", {9}, {u"16"}},
    {u"PE", {14, 9}, {u"18"}},
    {u"PI", {9}, {u"19"}},
    {u"PR", {10}, {}},
    {u"RJ", {8}, {u"1", u"7", u"8", u"9"}},
    {u"RN", {9}, {u"20"}},
    {u"RO", {14, 9}, {}},
    {u"RR", {9}, {u"24"}},
    {u"RS", {10}, {}},
    {u"SC", {9}, {}},
    {u"SE", {9}, {}},
    {u"SP", {12, 13}, {u"P"}},
    {u"TO", {11, 9}, {u"29", u"2901", u"3002", u"1103", u"5599"}},
    {u"EX", {9}, {}},
};

/// A text of AUnidade's kind: mostly of its length and start; sometimes any length, sometimes a stray "P".
std::u16string Sortear(const TUnidadeDeTeste& AUnidade, std::mt19937& AGerador) {
    const auto ate = [&](std::size_t n) { return AGerador() % n; };
    std::u16string ie;
    if (!AUnidade.Inicios.empty() && ate(4) != 0) ie = AUnidade.Inicios[ate(AUnidade.Inicios.size())];
    const std::size_t tamanho = ate(10) == 0 ? 1 + ate(16) : AUnidade.Tamanhos[ate(AUnidade.Tamanhos.size())];
    while (ie.size() < tamanho) ie += static_cast<char16_t>(u'0' + (ate(12) == 0 ? 0 : ate(10)));
    if (ate(20) == 0) ie[ate(ie.size())] = u'P';
    return ie;
}

// Every unit against the slow reading of its rule: random texts, each with all values of two of its digits, so that
// right check digits come up whatever their places.
TEST(IE, IgualALeituraLenta) {
    const auto semente = std::random_device{}();
    std::mt19937 gerador(semente);
    for (const TUnidadeDeTeste& unidade : CUnidades) {
        int validas = 0;
        for (int i = 0; i < 400; ++i) {
            std::u16string ie = Sortear(unidade, gerador);
            const std::size_t ultimo = ie.size() - 1;
            const std::size_t outro =
                unidade.UF == u"SP" && ie.size() > 9 ? (ie[0] == u'P' ? 9 : 8) : std::max<std::size_t>(ultimo, 1) - 1;
            const std::u16string original = ie;
            for (int valor = 0; valor <= 100; ++valor) {
                if (valor < 100) {
                    ie[outro] = static_cast<char16_t>(u'0' + valor / 10);
                    ie[ultimo] = static_cast<char16_t>(u'0' + valor % 10);
                } else {
                    ie = original;
                }
                const bool esperado = IELenta::Validou(ie, unidade.UF);
                validas += esperado;
                TOryUtilsValidacoesIE passo_a_passo;
                passo_a_passo.SetUF(unidade.UF);
                passo_a_passo.SetIE(ie);
                passo_a_passo.Validar();
                ASSERT_EQ(passo_a_passo.GetValido(), esperado)
                    << ParaUtf8(unidade.UF) << " " << ParaUtf8(ie) << " seed " << semente;
                ASSERT_EQ(ValidouIE(ie, unidade.UF), esperado)
                    << ParaUtf8(unidade.UF) << " " << ParaUtf8(ie) << " seed " << semente;
            }
        }
        EXPECT_GT(validas, 100) << ParaUtf8(unidade.UF);
    }
}

TEST(IE, RecusaPeloMotivoCerto) {
    struct TCaso {
        std::u16string_view UF, IE;
        TMotivoRecusa Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {u"XX", u"ISENTO", mrNenhum, "exempt whatever the unit"},
        {u"SP", u"Contribuinte não isento.", mrNenhum, "the word anywhere"},
        {u"SP", u"ISEN", mrVazio, "half the word"},
        {u"EX", u"", mrVazio, "empty, also for export"},
        {u"EX", u"123", mrNenhum, "export"},
        {u"EX", u"000000000", mrRepetido, "zeros alone"},
        {u"EX", u"123456789012345", mrTamanho, "fifteen characters"},
        {u"RS", u"224/3658792", mrVazio, "punctuation empties it"},
        {u"RS", u"２243658792", mrVazio, "and a full-width digit"},
        {u"RS", u"2243658792", mrNenhum, "right"},
        {u"rs", u"2243658792", mrNenhum, "lower-case unit"},
        {u"RS", u"2243658793", mrDigito, "wrong digit"},
        {u"RS", u"224365879", mrTamanho, "short"},
        {u"XY", u"2243658792", mrUf, "no such unit"},
        {u"", u"2243658792", mrUf, "no unit"},
        {u"ſp", u"110042490114", mrUf, "a letter whose upper case is S"},
        {u"SP", u"p011004243002", mrNenhum, "rural form in lower case"},
        {u"SP", u"P-01100424.3/002", mrVazio, "rural form with punctuation"},
        {u"SP", u"P01100424300P", mrCaractere, "a second P"},
        {u"AC", u"0200000000000", mrPrefixo, "another state's start"},
        {u"CE", u"160000000", mrPrefixo, "first digit"},
        {u"PB", u"150000000", mrPrefixo, "second digit"},
        {u"TO", u"11040000000", mrPrefixo, "neither 29 nor a known kind"},
        {u"BA", u"P", mrNenhum, "no number, hence 0, whose digits are right"},
    };
    for (const TCaso& caso : casos) EXPECT_EQ(Conferir(caso.IE, caso.UF), caso.Esperado) << caso.Porque;
}

TEST(IE, BahiaEMatoGrossoCompletamOsZeros) {
    TOryUtilsValidacoesIE ie;
    ie.SetUF(u"MT");
    ie.SetIE(u"130000019");
    ie.Validar();
    EXPECT_TRUE(ie.GetValido());
    EXPECT_EQ(ie.GetIE(), u"00130000019");
    ie.SetUF(u"BA");
    ie.SetIE(u"0012345");
    ie.Validar();
    EXPECT_EQ(ie.GetIE(), u"000012345") << "both formats tried";
    EXPECT_FALSE(ie.GetValido()) << "the verdict starts anew";
}

TEST(IE, BaseESomas) {
    TOryUtilsValidacoesIE ie;
    ie.SetIE(u"0012345");
    EXPECT_EQ(ie.FormatarBase(u"00000000"), u"00012345");
    EXPECT_EQ(ie.FormatarBase(u"000"), u"12345") << "longer than the pattern";
    const int pesos[] = {5, 4, 3};
    EXPECT_EQ(ie.SomarBase(pesos), 1 * 5 + 2 * 4 + 3 * 3) << "of the working base";
    EXPECT_EQ(ie.BuscarSomaModulo11(pesos, u"9"), 45 % 11) << "a missing digit counts 0";
    EXPECT_EQ(ie.FormatarBase(u"0000", u"1P2"), u"0000") << "not a number";
    EXPECT_EQ(ie.FormatarBase(u"0000", u""), u"0000");
    EXPECT_EQ(ie.FormatarBase(u"0000", u"1234567890123456789"), u"1234567890123456789") << "past exact doubles";
    EXPECT_EQ(ie.FormatarBase(u"00000", u"-7"), u"-00007");
    EXPECT_EQ(TOryUtilsValidacoesIE::BuscarDigitoPadrao(1), 0);
    EXPECT_EQ(TOryUtilsValidacoesIE::BuscarDigitoPadrao(2), 9);
}

}  // namespace
}  // namespace OryUtils
