#include "oryutils/registry_numbers/UnOryUtilsValidacoesClasseIE.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/MotivoRecusa.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"

#include "comum/Casos.hpp"

#include <sstream>

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
    std::u16string_view UF;
    const char* ComOutroInicio;
    const char* Validos;
};
// Computed apart from the library, by a program that followed each unit's rule in words. The numbers go through every
// form of a unit, through every remainder of the rules that few units have, and stand at both ends of the ranges. Those
// before them stand beside the first digits that the unit gives out.
// clang-format off
constexpr TNumerosDaUnidade CUnidades[] = {
    {u"AC", "0099999999999 0200000000000 009999999 020000000", "0171644948413 0142441976796 0151144652219"
            " 0152227619950 013543717 017473918"},
    {u"AL", "", "671695827 153118458 482363720 774748435"},
    {u"AM", "", "969147600 191431729 448227991"},
    {u"AP", "029999999 040000000", "030096192 030019333 030047396 030000071 030170007 030170011 030133454 030172987"
            " 030148516 030172251 030116150 030155598 030190225 030190231 031135986 031362524 030170135 030170160"
            " 030170143 030170194"},
    {u"BA", "", "68651969 75871804 98579147 97674133 17596886 11615970 15891358 18531741 81472710 51797371"
            " 661911144 718248210 982636127 197259304 194852137 149732743 169913470 882233301 554969741 06745224"},
    {u"CE", "100000000", "083951814 084155450 027348733"},
    {u"DF", "0699999999999 0800000000000", "0753189715605 0742725679930 0728362672207 0729261511583"},
    {u"ES", "", "499359291 872999610 396499902"},
    {u"GO", "", "166327212 153788631 101031041 101031051 101139446 101111101 101164149 101184204 101124430"
            " 101159285 101114753 101118848 101111207 101199971 101199988 299538559 249196883"},
    {u"MA", "119999999 130000000", "125334818 122466403 122864930"},
    {u"MG", "", "6454876142749 2871398648256 2163738569700 9793627499851 4358298828317 4862758651488 4557332491974"
            " 6465332161723"},
    {u"MS", "279999999 290000000", "285642499 289239680 281576483"},
    {u"MT", "", "45513518894 35322849988 75163683206 172376920 388395192"},
    {u"PA", "149999999 160000000", "156473755 152211691 156148978"},
    {u"PB", "059999999 070000000", "168225689 163782423 161644686"},
    {u"PE", "17999999999999 19000000000000", "18513511658301 18429821962438 18256973965939 18614624543824"
            " 18223368665580 18662832694905 18273757228963 18237724377572 18526486195477 18925513424486 691664633"
            " 129452262 932368670 144117924"},
    {u"PI", "189999999 200000000", "199895716 193161621 191624527"},
    {u"PR", "", "3196488366 2858158780 2197166641 5913992174"},
    {u"RJ", "09999999 20000000 69999999", "19718123 72728408 87298175 93266269"},
    {u"RN", "199999999 210000000", "204291283 204563569 204369924"},
    {u"RO", "", "85245828663749 55999766487535 48318964359557 45947486969206 95247711296291 63633814737992"
            " 17766889146250 37651655814374 52571198547298 622889148 483671631 647673196 751194565 613735957"
            " 714784389 941139254 919645443 997368172"},
    {u"RR", "239999999 250000000", "243712670 245178584 249583177 244797902 242178111 243385323 241525278 245938186"},
    {u"RS", "", "6246223757 5648869971 7515499819"},
    {u"SC", "", "273739603 587987880 857992139"},
    {u"SE", "", "257492577 785577203 659788705"},
    {u"SP", "", "128511419283 927612938362 797931613795 971241417139 115674388860 627219676268 827462926927"
            " P678462211460 P454137425790 P625334992415 P524117143840 P866748748780 P145622970320"},
    {u"TO", "28009999999 30040000000 11989999999", "29721726330 29417695258 11015655999 30029167698 55036893298"
            " 44994579338 843116463 264654668 666787964"},
};
// clang-format on

TEST(IE, ValidasEComOutroDigito) {
    for (const auto& [uf, comOutroInicio, validos] : CUnidades) {
        std::istringstream recusados(comOutroInicio), aceitos(validos);
        for (std::string ie; recusados >> ie;) EXPECT_EQ(Conferir(DeUtf8(ie), uf), mrPrefixo) << ParaUtf8(uf) << ie;
        for (std::string ie; aceitos >> ie;) {
            // Most numbers have one check digit, at their end; the rural one of SP has it in the middle.
            const std::size_t ultimo = ie[0] == 'P' ? 9 : ie.size() - 1;
            const bool dois = std::u16string_view(u"BA DF MG PR").find(uf) != uf.npos ||
                              (uf == u"AC" && ie.size() == 13) || (uf == u"PE" && ie.size() == 9);
            const std::size_t primeiro = uf == u"SP" && ie.size() == 12 ? 8 : ultimo - dois;
            for (const std::size_t lugar : {primeiro, ultimo})
                for (char digito = '0'; digito <= '9'; ++digito) {
                    std::string outra = ie;
                    outra[lugar] = digito;
                    EXPECT_EQ(Conferir(DeUtf8(outra), uf), outra == ie ? mrNenhum : mrDigito) << ParaUtf8(uf) << outra;
                }
        }
    }
}

TEST(IE, RecusaPeloMotivoCerto) {
    Testes::Conferir<TMotivoRecusa>({
        {Conferir(u"ISENTO", u"XX"), mrNenhum, "exempt whatever the unit"},
        {Conferir(u"Contribuinte não isento.", u"SP"), mrNenhum, "the word anywhere"},
        {Conferir(u"ISEN", u"SP"), mrVazio, "half the word"},
        {Conferir(u"", u"EX"), mrVazio, "empty, also for export"},
        {Conferir(u"123", u"EX"), mrNenhum, "export"},
        {Conferir(u"000000000", u"EX"), mrRepetido, "zeros alone"},
        {Conferir(u"123456789012345", u"EX"), mrTamanho, "fifteen characters"},
        {Conferir(u"224/3658792", u"RS"), mrVazio, "punctuation empties it"},
        {Conferir(u"２243658792", u"RS"), mrVazio, "and a full-width digit"},
        {Conferir(u"2243658792", u"RS"), mrNenhum, "right"},
        {Conferir(u"2243658792", u"rs"), mrNenhum, "lower-case unit"},
        {Conferir(u"2243658793", u"RS"), mrDigito, "wrong digit"},
        {Conferir(u"224365879", u"RS"), mrTamanho, "short"},
        {Conferir(u"2243658792", u"XY"), mrUf, "no such unit"},
        {Conferir(u"2243658792", u""), mrUf, "no unit"},
        {Conferir(u"110042490114", u"ſp"), mrUf, "a letter whose upper case is S"},
        {Conferir(u"p011004243002", u"SP"), mrNenhum, "rural form in lower case"},
        {Conferir(u"P-01100424.3/002", u"SP"), mrVazio, "rural form with punctuation"},
        {Conferir(u"P01100424300P", u"SP"), mrCaractere, "a second P"},
        {Conferir(u"P", u"BA"), mrNenhum, "no number, hence 0, whose digits are right"},
    });
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
    EXPECT_EQ(ie.FormatarBase(u"", u"000"), u"0") << "digits keep one digit";
    EXPECT_EQ(ie.FormatarBase(u"", u"1P2"), u"") << "no number and no pattern";
    EXPECT_EQ(ie.FormatarBase(u"0000", u"1234567890123456789"), u"1234567890123456789") << "past exact doubles";
    EXPECT_EQ(ie.FormatarBase(u"00000", u"-7"), u"-00007");
    EXPECT_EQ(TOryUtilsValidacoesIE::BuscarDigitoPadrao(1), 0);
    EXPECT_EQ(TOryUtilsValidacoesIE::BuscarDigitoPadrao(2), 9);
}

}  // namespace
}  // namespace OryUtils
