#include "oryutils/platform/Localidade.hpp"

#include "oryutils/readers/PadroesDoSistema.hpp"

#include <bit>
#include <iconv.h>
#include <langinfo.h>
#include <locale.h>
#include <string>
#include <string_view>

namespace OryUtils::Interno {
namespace {

using OryTypes::TFormatSettings;

// One category of the environment's locale; "C" when that locale is not installed. The process's own locale is neither
// read nor changed.
class TLocalidade {
public:
    TLocalidade(int AMascara, nl_item AItemDeCodificacao) : FLocalidade(::newlocale(AMascara, "", nullptr)) {
        if (!FLocalidade) FLocalidade = ::newlocale(AMascara, "C", nullptr);
        if (!FLocalidade) return;
        const char* destino = std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
        FConversor = ::iconv_open(destino, ::nl_langinfo_l(AItemDeCodificacao, FLocalidade));
    }
    ~TLocalidade() {
        if (FConversor != CSemConversor) ::iconv_close(FConversor);
        if (FLocalidade) ::freelocale(FLocalidade);
    }
    TLocalidade(const TLocalidade&) = delete;
    TLocalidade& operator=(const TLocalidade&) = delete;

    // Empty when the system does not tell.
    std::u16string Ler(nl_item AItem) const {
        if (!FLocalidade || FConversor == CSemConversor) return {};
        std::string origem = ::nl_langinfo_l(AItem, FLocalidade);
        std::u16string resultado(origem.size(), u'\0');  // no encoding of a locale has more units than bytes
        char* entrada = origem.data();
        char* saida = reinterpret_cast<char*>(resultado.data());
        std::size_t restoEntrada = origem.size();
        std::size_t restoSaida = resultado.size() * sizeof(char16_t);
        if (::iconv(FConversor, &entrada, &restoEntrada, &saida, &restoSaida) == static_cast<std::size_t>(-1)) {
            ::iconv(FConversor, nullptr, nullptr, nullptr, nullptr);
            return {};
        }
        resultado.resize(resultado.size() - restoSaida / sizeof(char16_t));
        return resultado;
    }

private:
    static inline const iconv_t CSemConversor = reinterpret_cast<iconv_t>(-1);

    locale_t FLocalidade;
    iconv_t FConversor = CSemConversor;
};

template <typename TNomes>
void LerNomes(const TLocalidade& ALocalidade, nl_item APrimeiro, TNomes& ANomes) {
    // The items of a list of names follow each other.
    for (std::size_t i = 0; i < ANomes.size(); ++i) ANomes[i] = ALocalidade.Ler(APrimeiro + static_cast<nl_item>(i));
}

// The system has no long date: the order of the short one decides.
std::u16string_view BuscarDataLonga(std::u16string_view ADataCurta) {
    const std::size_t primeiro = ADataCurta.find_first_of(u"dmy");
    const char16_t letra = primeiro == std::u16string_view::npos ? u'd' : ADataCurta[primeiro];
    return letra == u'y' ? u"yyyy mmmm d" : letra == u'm' ? u"dddd, mmmm d, yyyy" : u"dddd, d mmmm yyyy";
}

void LerSeparador(char16_t& ADestino, char16_t ASeparador) {
    if (ASeparador) ADestino = ASeparador;
}

}  // namespace

TFormatSettings BuscarFormatosDoSistema() {
    TFormatSettings formatos;

    const TLocalidade tempo(LC_TIME_MASK, _NL_TIME_CODESET);
    const TPadraoLido data = DePadraoStrftime(tempo.Ler(D_FMT), u'/');
    const TPadraoLido hora = DePadraoStrftime(tempo.Ler(T_FMT), u':');
    LerSeparador(formatos.DateSeparator, data.Separador);
    LerSeparador(formatos.TimeSeparator, hora.Separador);
    formatos.ShortDateFormat = data.Padrao.empty() ? u"mm/dd/yy" : data.Padrao;
    formatos.LongDateFormat = BuscarDataLonga(formatos.ShortDateFormat);
    formatos.LongTimeFormat = hora.Padrao.empty() ? u"hh:nn:ss" : hora.Padrao;
    formatos.ShortTimeFormat = RetirarSegundos(formatos.LongTimeFormat);
    formatos.TimeAMString = tempo.Ler(AM_STR);
    formatos.TimePMString = tempo.Ler(PM_STR);
    LerNomes(tempo, ABMON_1, formatos.ShortMonthNames);
    LerNomes(tempo, MON_1, formatos.LongMonthNames);
    LerNomes(tempo, ABDAY_1, formatos.ShortDayNames);
    LerNomes(tempo, DAY_1, formatos.LongDayNames);

    const TLocalidade numeros(LC_NUMERIC_MASK, _NL_NUMERIC_CODESET);
    if (const std::u16string decimal = numeros.Ler(RADIXCHAR); decimal.size() == 1)
        formatos.DecimalSeparator = decimal[0];
    if (const std::u16string milhar = numeros.Ler(THOUSEP); milhar.size() == 1)
        formatos.ThousandSeparator = milhar[0];
    else if (formatos.DecimalSeparator == formatos.ThousandSeparator)
        formatos.ThousandSeparator = u'.';  // a locale without grouping: the two marks must still differ
    return formatos;
}

}  // namespace OryUtils::Interno
