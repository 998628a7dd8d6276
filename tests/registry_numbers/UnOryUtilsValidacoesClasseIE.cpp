#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"
#include "oryutils/registry_numbers/interno/MotivoRecusa.hpp"

#include <gtest/gtest.h>

#include <span>

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

struct TNumerosDaUnidade {
    std::u16string_view UF, Numeros;
};
// Computed apart from the library, by a program that followed each unit's rule in words. The numbers go through every
// form of a unit, through every remainder of the rules that few units have, and stand at both ends of the ranges.
// clang-format off
constexpr TNumerosDaUnidade CValidas[] = {
    {u"AC", u"0171644948413 0164244197655 0195493543700 0117473968801 011695803 011153105"},
    {u"AL", u"471585203 464889804 558933408 363748407"},
    {u"AM", u"938432800 747484104 519143108"},
    {u"AP", u"030077503 030066501 030022709 030000012 030170007 030170011 030115200 030193109 030147307 030141902"
           u" 030146505 030129201 030190225 030190231 031581803 031238300 030170101"},
    {u"BA", u"65691818 72529305 91812649 96494363 15985345 19329853 15663874 11916688 86747684 56414857 672743400"
           u" 727542970 996749623 141947978 131749645 132674539 135388246 895779807 587545330 02388793"},
    {u"CE", u"011979402 078796903 035783508"},
    {u"DF", u"0716877627577 0728284969758 0714335291559 0743223548900"},
    {u"ES", u"361574703 839992904 562681302"},
    {u"GO", u"119135108 114677204 101031041 101031051 101139705 101126107 101117809 101161506 101187408 101189702"
           u" 101124201 101124503 101158904 101199971 101199988 241967902 216457408"},
    {u"MA", u"128291702 127381503 126676500"},
    {u"MG", u"9546794334476 3374853246718 7441293347861 3371782248320 5498776649104 1364428667592 2669415358819"
           u" 2685853988917"},
    {u"MS", u"282867902 286787806 287653900"},
    {u"MT", u"45486486800 99545629607 43392472604 834784203 133465306"},
    {u"PA", u"153622709 152857508 154589705"},
    {u"PB", u"461818507 163835500 165781408"},
    {u"PE", u"18931976665901 18923364718108 18125571347105 18484175882506 18317659498707 18951844896103"
           u" 18127637272700 18139857942204 18717623418702 18938385175409 691643393 227839544 216761948 239395409"},
    {u"PI", u"198575700 198368607 196484405"},
    {u"PR", u"8351153807 2771421710 9438892793 1947154474"},
    {u"RJ", u"16419206 73764505 85261509 96985100"},
    {u"RN", u"209741708 208612602 201778700"},
    {u"RO", u"98677574155601 39675574614608 33916779734509 68727451821405 29531143647903 75259251353500"
           u" 58468576869806 48223434969102 12333835487904 591753505 352773204 239998206 921369403 924473901"
           u" 666157309 954958107 282321508 796972100"},
    {u"RR", u"246592603 245988504 248754208 248892701 242163905 247941707 241921100 245215602"},
    {u"RS", u"9896132408 4617287506 5699449201"},
    {u"SC", u"431338108 171991907 931994900"},
    {u"SE", u"273364707 711995702 665331304"},
    {u"SP", u"225556928859 684815799740 577333764857 524494940236 298893720282 984974844683 397215287561"
           u" P214498337530 P323767996370 P279834119350 P715418280660 P679159512280 P867554715650"},
    {u"TO", u"29936876208 29934795600 11014364303 30021352402 55038281605 44998746301 225178303 644432900"
           u" 447459309"},
};
// clang-format on

// Beside the first digits that the unit gives out.
constexpr TNumerosDaUnidade COutroInicio[] = {
    {u"AC", u"0099999999999 0200000000000 009999999 020000000"},
    {u"AP", u"029999999 040000000"},
    {u"CE", u"100000000"},
    {u"DF", u"0699999999999 0800000000000"},
    {u"MA", u"119999999 130000000"},
    {u"MS", u"279999999 290000000"},
    {u"PA", u"149999999 160000000"},
    {u"PB", u"059999999 070000000"},
    {u"PE", u"17999999999999 19000000000000"},
    {u"PI", u"189999999 200000000"},
    {u"RJ", u"09999999 20000000 69999999"},
    {u"RN", u"199999999 210000000"},
    {u"RR", u"239999999 250000000"},
    {u"TO", u"28009999999 30040000000 11989999999"},
};

template <typename TAcao>
void PercorrerNumeros(std::span<const TNumerosDaUnidade> AUnidades, TAcao AAcao) {
    for (const auto& [uf, numeros] : AUnidades)
        for (std::size_t fim = 0, inicio = 0; fim != numeros.npos; inicio = fim + 1) {
            fim = numeros.find(u' ', inicio);
            AAcao(uf, numeros.substr(inicio, fim - inicio));
        }
}

TEST(IE, ValidasEComOutroDigito) {
    PercorrerNumeros(CValidas, [](std::u16string_view AUF, std::u16string_view AValida) {
        EXPECT_EQ(Conferir(AValida, AUF), mrNenhum) << ParaUtf8(AUF) << " " << ParaUtf8(AValida);
        // Most numbers have one check digit, at their end; the rural one of SP has it in the middle.
        const std::size_t tamanho = AValida.size();
        const std::size_t ultimo = AValida[0] == u'P' ? 9 : tamanho - 1;
        const bool dois = std::u16string_view(u"BA DF MG PR").find(AUF) != AUF.npos ||
                          (AUF == u"AC" && tamanho == 13) || (AUF == u"PE" && tamanho == 9);
        const std::size_t primeiro = AUF == u"SP" && tamanho == 12 ? 8 : ultimo - dois;
        for (const std::size_t lugar : {primeiro, ultimo})
            for (int passo = 1; passo <= 9; ++passo) {
                std::u16string ie(AValida);
                ie[lugar] = static_cast<char16_t>(u'0' + (ie[lugar] - u'0' + passo) % 10);
                EXPECT_EQ(Conferir(ie, AUF), mrDigito) << ParaUtf8(AUF) << " " << ParaUtf8(ie);
            }
    });
    PercorrerNumeros(COutroInicio, [](std::u16string_view AUF, std::u16string_view AIE) {
        EXPECT_EQ(Conferir(AIE, AUF), mrPrefixo) << ParaUtf8(AUF) << " " << ParaUtf8(AIE);
    });
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
