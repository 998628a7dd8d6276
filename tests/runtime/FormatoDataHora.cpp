#include "oryutils/runtime/FormatoDataHora.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include "comum/Acaso.hpp"
#include "comum/MensagemDe.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace OryUtils;

const TFormatSettings& Brasil() { return BuscarFormatosBrasileiros(); }

TDateTime Momento(int AAno, int AMes, int ADia, int AHora = 0, int AMinuto = 0, int ASegundo = 0, int AMili = 0) {
    return JuntarDataHora(CodificarData(AAno, AMes, ADia), CodificarHora(AHora, AMinuto, ASegundo, AMili));
}

TEST(FormatoDataHora, Linguagem) {
    const TDateTime tarde = Momento(2024, 3, 5, 14, 7, 9, 45);  // a Tuesday
    const TDateTime madrugada = Momento(987, 12, 31, 0, 30);
    const std::tuple<std::u16string_view, TDateTime, std::u16string_view, const char*> casos[] = {
        {u"d dd ddd dddd", tarde, u"5 05 Ter Terça", "days"},
        {u"m mm mmm mmmm mmmmmm", tarde, u"3 03 MAR MARCO MARCO", "months; a longer run is the longest element"},
        {u"y yy yyy yyyy", madrugada, u"87 87 0987 0987", "a year of three digits is filled"},
        {u"h:n:s.z", tarde, u"14:7:9.45", "without zeros"},
        {u"HH:NN:SS.ZZZ", tarde, u"14:07:09.045", "either case"},
        {u"h:n z", Momento(2024, 3, 5, 10, 10, 0, 100), u"10:10 100", "the least numbers of two and three digits"},
        {u"hh:mm:ss dd/mm", tarde, u"14:07:09 05/03", "mm after hh are minutes, then the month again"},
        {u"MM/DD HH:MM", tarde, u"03/05 14:07", "upper case"},
        {u"hhmm mm", tarde, u"1407 03", "only the first m after the hour"},
        {u"hh mmm", tarde, u"14 MAR", "a name is a month's"},
        {u"hh x mm", tarde, u"14 x 03", "another letter parts them"},
        {u"hh:mm am/pm", tarde, u"02:07 pm", "twelve hours"},
        {u"AM/PM h", madrugada, u"AM 12", "a mark before the hour; midnight is 12; the pattern's case"},
        {u"h a/P", tarde, u"2 P", "short mark"},
        {u"h:nn AM/PM", Momento(2024, 3, 5, 12, 59), u"12:59 PM", "noon is 12"},
        {u"h:nn AM/PM", Momento(2024, 3, 5, 11, 59), u"11:59 AM", "before it"},
        {u"h ampm", tarde, u"2 PM", "the texts of the formats"},
        {u"h 'am/pm'", tarde, u"14 am/pm", "a quoted mark is no mark"},
        {u"amanha", tarde, u"a3a714a", "an a without mark stands for itself"},
        {u"c", tarde, u"05/03/2024 14:07:09", "everything"},
        {u"", Momento(2024, 3, 5), u"05/03/2024", "empty is c; without time at midnight"},
        {u"ddddd|dddddd", tarde, u"05/03/2024|05  de MARCO de 2024", "formats"},
        {u"\"d'd\" 'm\"m'", tarde, u"d'd m\"m", "each kind of quotes holds the other"},
        {u"'", tarde, u"", "a lone quote"},
        {u"yyyy-mm-dd\U0001F600é\xD800", tarde, u"2024-03-05\U0001F600é\xD800", "others stand for themselves"},
        {u"dd hh:nn:ss.zzz", 45355 + (1 - 1e-9), u"05 00:00:00.000", "rounds up into the next day"},
        {u"dd/mm/yyyy hh", -1.25, u"29/12/1899 06", "before day 0"},
        {u"dd/mm/yyyy dddd mmmm hh", 3e6 + 0.5, u"00/00/0000   12", "after year 9999: zeros and no names"},
        {u"dd/mm/yy c", std::nan(""), u"00/00/00 00/00/0000", "not a number"},
    };
    for (const auto& [padrao, data, esperado, porque] : casos)
        EXPECT_EQ(FormatarDataHora(padrao, data, Brasil()), esperado) << porque;
}

TEST(FormatoDataHora, FormatosQueSeRepetemOuFaltam) {
    TFormatSettings formatos = Brasil();
    formatos.ShortDateFormat = u"dd c ddddd tt dddddd t";
    formatos.LongTimeFormat = u"tt c hh";
    formatos.DateSeparator = 0;
    formatos.TimeSeparator = u'.';
    const TDateTime data = Momento(2024, 3, 5, 14, 7);
    EXPECT_EQ(FormatarDataHora(u"c", data, formatos), u"05        14") << "a format does not open formats";
    EXPECT_EQ(FormatarDataHora(u"dd/mm hh:nn", data, formatos), u"0503 14.07") << "separator of code 0 is none";
}

TEST(FormatoDataHora, PadraoLongo) {
    std::u16string padrao, esperado;
    for (int i = 0; i < 20000; ++i) {
        padrao += u"dd/mm hh:mm";
        esperado += u"05/03 14:07";
    }
    EXPECT_EQ(FormatarDataHora(padrao, Momento(2024, 3, 5, 14, 7), Brasil()), esperado);
    EXPECT_EQ(FormatarDataHora(std::u16string(1 << 20, u'd'), 0, Brasil()), FormatarDataHora(u"dddddd", 0, Brasil()));
    EXPECT_EQ(FormatarDataHora(std::u16string(1 << 20, u'a'), 0, Brasil()).size(), 1u << 20);
}

TEST(FormatoDataHora, LeDatas) {
    TFormatSettings americanos = Brasil(), iso = Brasil(), semJanela = Brasil();
    americanos.ShortDateFormat = u"'d' ddd mm/dd/yyyy";
    iso.ShortDateFormat = u"yyyy/mm/dd";
    iso.DateSeparator = u'-';
    semJanela.TwoDigitYearCenturyWindow = 0;
    // In the year 2024.
    const std::tuple<std::u16string_view, const TFormatSettings&, std::optional<TDateTime>, const char*> casos[] = {
        {u"05/03/2024", Brasil(), CodificarData(2024, 3, 5), "complete"},
        {u" \t5/3/2024\r\n", Brasil(), CodificarData(2024, 3, 5), "blanks around, short parts"},
        {u"5/3", Brasil(), CodificarData(2024, 3, 5), "current year"},
        {u"5/3/73", Brasil(), CodificarData(2073, 3, 5), "last year of the window"},
        {u"5/3/74", Brasil(), CodificarData(1974, 3, 5), "first year of the window"},
        {u"5/3/74", semJanela, CodificarData(2074, 3, 5), "no window: the current century"},
        {u"5/3/987", Brasil(), CodificarData(987, 3, 5), "three digits are the year itself"},
        {u"3/5/2024", americanos, CodificarData(2024, 3, 5), "month first; literal and weekday do not count"},
        {u"2024-3-5", iso, CodificarData(2024, 3, 5), "year first"},
        {u"29/02/2024", Brasil(), CodificarData(2024, 2, 29), "leap day"},
        {u"29/02/2023", Brasil(), std::nullopt, "no leap day"},
        {u"05-03-2024", Brasil(), std::nullopt, "another separator"},
        {u"005/3/2024", Brasil(), std::nullopt, "three digits of a day"},
        {u"5/3/02024", Brasil(), std::nullopt, "five digits of a year"},
        {u"5/3/", Brasil(), std::nullopt, "missing part"},
        {u"5/3/2024 x", Brasil(), std::nullopt, "rest"},
        {u"٥/٣/2024", Brasil(), std::nullopt, "digits of another script"},
        {u"", Brasil(), std::nullopt, "empty"},
        {u"5/3/99999999999999999999", Brasil(), std::nullopt, "number that fits nowhere"},
    };
    for (const auto& [texto, formatos, esperado, porque] : casos)
        EXPECT_EQ(TentarTextoParaData(texto, formatos, 2024), esperado) << porque;
    EXPECT_EQ(TextoParaDataPadrao(u"x", 7, Brasil()), 7);
    EXPECT_EQ(TextoParaDataPadrao(u"5/3/2024", 7, Brasil()), CodificarData(2024, 3, 5));
}

TEST(FormatoDataHora, LeHorasEDatasComHora) {
    const auto hora = [](int h, int m, int s = 0, int z = 0) { return std::optional(CodificarHora(h, m, s, z)); };
    const auto data = [](TDateTime AData) { return std::optional(AData); };
    const std::tuple<std::u16string_view, std::optional<TDateTime>, const char*> casos[] = {
        {u"14:07", hora(14, 7), "hours and minutes"},
        {u" 1:2:3.45 ", hora(1, 2, 3, 45), "a number of milliseconds"},
        {u"1:2:3,450", hora(1, 2, 3, 450), "after the decimal separator"},
        {u"12:30 am", hora(0, 30), "half past midnight"},
        {u"7:05 p", hora(19, 5), "short mark"},
        {u"13:00 pm", std::nullopt, "no such hour with a mark"},
        {u"0:30 am", std::nullopt, "no hour 0 with a mark"},
        {u"7", std::nullopt, "one part"},
        {u"1:2:3:4", std::nullopt, "milliseconds after a colon"},
        {u"1:2:3.4567", std::nullopt, "more than milliseconds"},
        {u"5/3/2024", data(Momento(2024, 3, 5)), "date alone"},
        {u" 5/3/2024  \t 14:07:09 ", data(Momento(2024, 3, 5, 14, 7, 9)), "both"},
        {u"5/3 7:00 pm", data(Momento(2024, 3, 5, 19)), "both with a mark"},
        {u"5/3/2024 14", std::nullopt, "half a time"},
        {u"14:07 5/3/2024", std::nullopt, "in the other order"},
        {u"", std::nullopt, "empty"},
    };
    for (const auto& [texto, esperado, porque] : casos)
        EXPECT_EQ(TentarTextoParaDataHora(texto, Brasil(), 2024), esperado) << porque;
    EXPECT_EQ(TentarTextoParaHora(u"5/3/2024", Brasil()), std::nullopt);
}

TEST(FormatoDataHora, ErrosCitamOTexto) {
    const auto mensagem = [](auto AOperacao, const std::u16string& ATexto) {
        return Testes::MensagemDe([&] { AOperacao(ATexto, Brasil()); });
    };
    EXPECT_EQ(mensagem(TextoParaData, u"31/02/2024"), "'31/02/2024' não é uma data válida");
    EXPECT_EQ(mensagem(TextoParaHora, u"25:00"), "'25:00' não é uma hora válida");
    EXPECT_LT(mensagem(TextoParaData, std::u16string(1 << 20, u'9')).size(), 200u) << "a megabyte is cut short";
}

TEST(FormatoDataHora, OQueEscreveLe) {
    Testes::TAcaso sorteio;
    std::uniform_int_distribution dia(-693593, 2958465), mili(0, 86399999);
    for (int i = 0; i < 20000; ++i) {
        const TDateTime valor = JuntarDataHora(dia(sorteio), mili(sorteio) / 86400000.0);
        const std::u16string texto = FormatarDataHora(u"ddddd h:nn:ss.zzz ampm", valor, Brasil());
        ASSERT_EQ(TentarTextoParaDataHora(texto, Brasil(), 2024), valor) << ParaUtf8(texto);
    }
}

}  // namespace
