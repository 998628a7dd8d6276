#include "oryutils/runtime/Formatos.hpp"

#include "oryutils/platform/Localidade.hpp"

#include <atomic>

namespace OryUtils {
namespace {

constinit std::atomic_bool GConfigurando = false;

/// The system is asked (files of its locale, a converter) only where nobody has said the formats before they are used.
TFormatSettings& FormatosDoProcesso(const TFormatSettings* ADefinidos = nullptr) {
    static TFormatSettings formatos = ADefinidos ? *ADefinidos : Interno::BuscarFormatosDoSistema();
    return formatos;
}

// Letter for letter what forms and reports have shown since the first version: months in capitals without the cedilla,
// "Sabado" without its accent, two spaces after the day of the long date.
TFormatSettings CriarFormatosBrasileiros() {
    return {
        .DateSeparator = u'/',
        .TimeSeparator = u':',
        .DecimalSeparator = u',',
        .ThousandSeparator = u'.',
        .ShortDateFormat = u"dd/MM/yyyy",
        .LongDateFormat = u"dd  \"de\" MMMM \"de\" yyyy",
        .ShortTimeFormat = u"hh:mm",
        .LongTimeFormat = u"hh:mm:ss",
        .TimeAMString = u"AM",
        .TimePMString = u"PM",
        .ShortMonthNames = {u"JAN", u"FEV", u"MAR", u"ABR", u"MAI", u"JUN", u"JUL", u"AGO", u"SET", u"OUT", u"NOV",
                            u"DEZ"},
        .LongMonthNames = {u"JANEIRO", u"FEVEREIRO", u"MARCO", u"ABRIL", u"MAIO", u"JUNHO", u"JULHO", u"AGOSTO",
                           u"SETEMBRO", u"OUTUBRO", u"NOVEMBRO", u"DEZEMBRO"},
        .ShortDayNames = {u"Dom", u"Seg", u"Ter", u"Qua", u"Qui", u"Sex", u"Sab"},
        .LongDayNames = {u"Domingo", u"Segunda", u"Terça", u"Quarta", u"Quinta", u"Sexta", u"Sabado"},
        .TwoDigitYearCenturyWindow = 50,
    };
}

}  // namespace

const TFormatSettings& FormatSettings() { return FormatosDoProcesso(); }

void DefinirFormatSettings(const TFormatSettings& AFormatos) { FormatosDoProcesso(&AFormatos) = AFormatos; }

bool EstahConfigurandoFormatos() noexcept { return GConfigurando; }
TFormatosEmConfiguracao::TFormatosEmConfiguracao() noexcept { GConfigurando = true; }
TFormatosEmConfiguracao::~TFormatosEmConfiguracao() { GConfigurando = false; }

const TFormatSettings& BuscarFormatosBrasileiros() {
    static const TFormatSettings formatos = CriarFormatosBrasileiros();
    return formatos;
}

}  // namespace OryUtils
