#include "oryutils/platform/Localidade.hpp"
#include "oryutils/readers/PadroesDoSistema.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace OryUtils;
using namespace OryUtils::Interno;

TEST(FormatosDoSistema, PadroesDoSistemaNaLinguagemDosFormatos) {
    const struct {
        TPadraoLido (*Ler)(std::u16string_view, char16_t);
        std::u16string_view Origem;
        char16_t Marca;
        TPadraoLido Esperado;
        const char* Porque;
    } casos[] = {
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
    for (const auto& c : casos) {
        const TPadraoLido lido = c.Ler(c.Origem, c.Marca);
        EXPECT_EQ(lido.Padrao, c.Esperado.Padrao) << c.Porque;
        EXPECT_EQ(lido.Separador, c.Esperado.Separador) << c.Porque;
    }
    EXPECT_EQ(RetirarSegundos(u"h:nn:ss ampm"), u"h:nn ampm");
    EXPECT_EQ(RetirarSegundos(u"hh.nn"), u"hh.nn");
}

// Whatever the locale of the machine: the formats are complete, and what they write they read.
TEST(FormatosDoSistema, FormatosDoUsuarioServem) {
    const TFormatSettings formatos = BuscarFormatosDoSistema();
    const auto preenchidos = [](const auto& ANomes) {
        return std::ranges::none_of(ANomes, [](const auto& n) { return n.empty(); });
    };
    EXPECT_TRUE(preenchidos(formatos.LongMonthNames) && preenchidos(formatos.ShortMonthNames));
    EXPECT_TRUE(preenchidos(formatos.LongDayNames) && preenchidos(formatos.ShortDayNames));
    EXPECT_NE(formatos.DecimalSeparator, formatos.ThousandSeparator);
    const TDateTime data = CodificarData(2024, 3, 5);
    EXPECT_EQ(TentarTextoParaData(FormatarDataHora(u"ddddd", data, formatos), formatos, 2024), data);
    const TDateTime hora = CodificarHora(14, 7, 9, 0);
    EXPECT_EQ(TentarTextoParaHora(FormatarDataHora(u"tt", hora, formatos), formatos), hora);
    EXPECT_EQ(TentarTextoParaHora(FormatarDataHora(u"t", hora, formatos), formatos), CodificarHora(14, 7, 0, 0));
}

TEST(FormatosDoSistema, TrocaPorUmTempo) {
    const TFormatSettings antes = FormatSettings();
    {
        const TFormatosTemporarios temporarios(BuscarFormatosBrasileiros());
        EXPECT_EQ(FormatSettings(), BuscarFormatosBrasileiros());
    }
    EXPECT_EQ(FormatSettings(), antes);
}

}  // namespace
