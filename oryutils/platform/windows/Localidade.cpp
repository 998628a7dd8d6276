#include "oryutils/platform/Localidade.hpp"

#include "oryutils/platform/windows/Windows.hpp"
#include "oryutils/readers/PadroesDoSistema.hpp"

#include <string>

namespace OryUtils::Interno {
namespace {

using OryTypes::TFormatSettings;

std::u16string LerDaLocalidade(const wchar_t* ALocalidade, LCTYPE AItem) {
    wchar_t texto[128];  // the longest item has 80
    const int tamanho = ::GetLocaleInfoEx(ALocalidade, AItem, texto, static_cast<int>(std::size(texto)));
    return tamanho > 0 ? DeWide({texto, static_cast<std::size_t>(tamanho) - 1}) : std::u16string();
}

std::u16string Ler(LCTYPE AItem) {
    std::u16string texto = LerDaLocalidade(LOCALE_NAME_USER_DEFAULT, AItem);
    return texto.empty() ? LerDaLocalidade(LOCALE_NAME_INVARIANT, AItem) : texto;
}

void LerSinal(LCTYPE AItem, char16_t& ADestino) {
    if (const std::u16string texto = Ler(AItem); texto.size() == 1) ADestino = texto[0];
}

void LerSeparador(char16_t& ADestino, char16_t ASeparador) {
    if (ASeparador) ADestino = ASeparador;
}

void LerMeses(LCTYPE APrimeiro, std::array<std::u16string, 12>& ANomes) {
    for (std::size_t i = 0; i < ANomes.size(); ++i) ANomes[i] = Ler(APrimeiro + static_cast<LCTYPE>(i));
}

// The system counts the days from Monday on.
void LerDias(LCTYPE APrimeiro, std::array<std::u16string, 7>& ANomes) {
    for (std::size_t i = 0; i < ANomes.size(); ++i)
        ANomes[(i + 1) % ANomes.size()] = Ler(APrimeiro + static_cast<LCTYPE>(i));
}

}  // namespace

TFormatSettings BuscarFormatosDoSistema() {
    TFormatSettings formatos;
    const TPadraoLido data = DePadraoWindows(Ler(LOCALE_SSHORTDATE), u'/');
    const TPadraoLido hora = DePadraoWindows(Ler(LOCALE_STIMEFORMAT), u':');
    LerSeparador(formatos.DateSeparator, data.Separador);
    LerSeparador(formatos.TimeSeparator, hora.Separador);
    LerSinal(LOCALE_SDECIMAL, formatos.DecimalSeparator);
    LerSinal(LOCALE_STHOUSAND, formatos.ThousandSeparator);
    formatos.ShortDateFormat = data.Padrao;
    // In the long date the date's separator is no separator but a literal.
    formatos.LongDateFormat = DePadraoWindows(Ler(LOCALE_SLONGDATE), 0).Padrao;
    formatos.ShortTimeFormat = DePadraoWindows(Ler(LOCALE_SSHORTTIME), u':').Padrao;
    formatos.LongTimeFormat = hora.Padrao;
    formatos.TimeAMString = Ler(LOCALE_S1159);
    formatos.TimePMString = Ler(LOCALE_S2359);
    LerMeses(LOCALE_SABBREVMONTHNAME1, formatos.ShortMonthNames);
    LerMeses(LOCALE_SMONTHNAME1, formatos.LongMonthNames);
    LerDias(LOCALE_SABBREVDAYNAME1, formatos.ShortDayNames);
    LerDias(LOCALE_SDAYNAME1, formatos.LongDayNames);
    return formatos;
}

}  // namespace OryUtils::Interno
