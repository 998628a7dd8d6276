#include "oryutils/readers/PadroesDoSistema.hpp"

#include <gtest/gtest.h>

namespace OryUtils::Interno {
namespace {

TEST(PadroesDoSistema, NaLinguagemDosFormatos) {
    using TLeitor = TPadraoLido (*)(std::u16string_view, char16_t);
    const std::tuple<TLeitor, std::u16string_view, char16_t, TPadraoLido, const char*> casos[] = {
        {DePadraoStrftime, u"%d/%m/%Y", u'/', {u"dd/mm/yyyy", u'/'}, "Brazil"},
        {DePadraoStrftime, u"%d.%m.%Y", u'/', {u"dd/mm/yyyy", u'.'}, "the mark becomes the separator"},
        {DePadraoStrftime, u"%D", u'/', {u"mm/dd/yy", u'/'}, "a composite"},
        {DePadraoStrftime, u"%-d/%Om/%Ey", u'/', {u"d/mm/yy", u'/'}, "modifiers"},
        {DePadraoStrftime, u"%Y年%m月", u'/', {u"yyyy年mm月", 0}, "no separator"},
        {DePadraoStrftime, u"%r %Z", u':', {u"hh:nn:ss ampm", u':'}, "a zone is dropped with its blank"},
        {DePadraoStrftime, u"%Hh%M", u':', {u"hh'h'nn", 0}, "a letter is quoted"},
        {DePadraoStrftime, u"%H:%", u':', {u"hh:", u':'}, "cut off"},
        {DePadraoWindows, u"dd/MM/yyyy", u'/', {u"dd/mm/yyyy", u'/'}, "Brazil"},
        {DePadraoWindows, u"dddd, d 'de' MMMM 'de' yyyy", 0, {u"dddd, d 'de 'mmmm 'de 'yyyy", 0}, "long date"},
        {DePadraoWindows, u"h:mm:ss tt", u':', {u"h:nn:ss ampm", u':'}, "twelve hours"},
        {DePadraoWindows, u"HH:mm 'o''clock'", u':', {u"hh:nn 'o'\"'clock\"", u':'}, "a quote inside quotes"},
        {DePadraoWindows, u"gg y-M-d", u'/', {u"yy/m/d", u'-'}, "an era is dropped with its blank"},
    };
    for (const auto& [ler, origem, marca, esperado, porque] : casos) {
        const TPadraoLido lido = ler(origem, marca);
        EXPECT_EQ(std::pair(lido.Padrao, lido.Separador), std::pair(esperado.Padrao, esperado.Separador)) << porque;
    }
    EXPECT_EQ(RetirarSegundos(u"h:nn:ss ampm"), u"h:nn ampm");
    EXPECT_EQ(RetirarSegundos(u"hh.nn"), u"hh.nn");
}

}  // namespace
}  // namespace OryUtils::Interno
