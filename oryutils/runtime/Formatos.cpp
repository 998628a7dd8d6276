#include "oryutils/runtime/Formatos.hpp"

#include "oryutils/platform/Localidade.hpp"

namespace OryUtils {
namespace {

TFormatSettings& FormatosDoProcesso() {
    static TFormatSettings formatos = Plataforma::BuscarFormatosDoSistema();
    return formatos;
}

// Names in lower case, as the Brazilian locales of the systems have them.
TFormatSettings CriarFormatosBrasileiros() {
    return {
        .DateSeparator = u'/',
        .TimeSeparator = u':',
        .DecimalSeparator = u',',
        .ThousandSeparator = u'.',
        .ShortDateFormat = u"dd/mm/yyyy",
        .LongDateFormat = u"dddd, d' de 'mmmm' de 'yyyy",
        .ShortTimeFormat = u"hh:mm",
        .LongTimeFormat = u"hh:mm:ss",
        .TimeAMString = u"AM",
        .TimePMString = u"PM",
        .ShortMonthNames = {u"jan", u"fev", u"mar", u"abr", u"mai", u"jun", u"jul", u"ago", u"set", u"out", u"nov",
                            u"dez"},
        .LongMonthNames = {u"janeiro", u"fevereiro", u"março", u"abril", u"maio", u"junho", u"julho", u"agosto",
                           u"setembro", u"outubro", u"novembro", u"dezembro"},
        .ShortDayNames = {u"dom", u"seg", u"ter", u"qua", u"qui", u"sex", u"sáb"},
        .LongDayNames = {u"domingo", u"segunda-feira", u"terça-feira", u"quarta-feira", u"quinta-feira", u"sexta-feira",
                         u"sábado"},
        .TwoDigitYearCenturyWindow = 50,
    };
}

}  // namespace

const TFormatSettings& FormatSettings() { return FormatosDoProcesso(); }

void DefinirFormatSettings(const TFormatSettings& AFormatos) { FormatosDoProcesso() = AFormatos; }

const TFormatSettings& BuscarFormatosBrasileiros() {
    static const TFormatSettings formatos = CriarFormatosBrasileiros();
    return formatos;
}

}  // namespace OryUtils
