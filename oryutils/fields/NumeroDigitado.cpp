#include "oryutils/fields/interno/NumeroDigitado.hpp"

#include "oryutils/characters/Caracteres.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr char16_t CEspacoSemQuebra = 0xA0, CEspacoEstreito = 0x202F, CMenosTipografico = 0x2212;

bool EhEspaco(char16_t ACaractere) {
    return ACaractere <= u' ' || ACaractere == CEspacoSemQuebra || ACaractere == CEspacoEstreito;
}

std::u16string_view SemEspacosEmVolta(std::u16string_view ATexto) {
    while (!ATexto.empty() && EhEspaco(ATexto.front())) ATexto.remove_prefix(1);
    while (!ATexto.empty() && EhEspaco(ATexto.back())) ATexto.remove_suffix(1);
    return ATexto;
}

/// Takes a "-" off the front.
bool TirarSinal(std::u16string_view& ATexto) {
    if (ATexto.empty() || (ATexto.front() != u'-' && ATexto.front() != CMenosTipografico)) return false;
    ATexto = SemEspacosEmVolta(ATexto.substr(1));
    return true;
}

/// The digits of a whole part that may have its thousands parted; none when the groups are not of three by one mark.
/// "0.125" has no thousands.
std::optional<std::u16string> LerInteiro(std::u16string_view ATexto) {
    const auto primeira = std::ranges::find_if_not(ATexto, EhDigito);
    if (primeira == ATexto.end()) return std::u16string(ATexto);
    const char16_t marca = *primeira;
    constexpr std::size_t CGrupo = 3;
    std::size_t tamanho = ATexto.find(marca);
    if (tamanho == 0 || tamanho > CGrupo || ATexto.substr(0, tamanho) == u"0") return std::nullopt;
    std::u16string digitos(ATexto.substr(0, tamanho));
    for (ATexto.remove_prefix(tamanho); !ATexto.empty(); ATexto.remove_prefix(CGrupo + 1)) {
        if (ATexto.size() <= CGrupo || ATexto.front() != marca) return std::nullopt;
        const std::u16string_view grupo = ATexto.substr(1, CGrupo);
        if (!std::ranges::all_of(grupo, EhDigito)) return std::nullopt;
        digitos += grupo;
    }
    return digitos;
}

/// Where the decimal mark stands; npos for none.
std::size_t BuscarMarcaDecimal(std::u16string_view ANumero, char16_t ADecimal) {
    const std::size_t ultima = ANumero.find_last_of(u".,");
    const std::size_t doFormato = ANumero.find_last_of(ADecimal);
    if (ultima == ANumero.npos || (doFormato != ANumero.npos && doFormato > ultima)) return doFormato;
    const char16_t marca = ANumero[ultima];
    if (std::ranges::count(ANumero, marca) > 1) return ANumero.npos;
    if (marca == ADecimal) return ultima;
    return LerInteiro(ANumero) ? ANumero.npos : ultima;
}

}  // namespace

std::optional<std::u16string> LerNumeroDigitado(std::u16string_view ATexto, const OryTypes::TFormatSettings& AFormatos,
                                                bool APercentual) {
    std::u16string_view texto = SemEspacosEmVolta(ATexto);
    bool negativo = TirarSinal(texto);
    if (texto.starts_with(u"R$")) texto = SemEspacosEmVolta(texto.substr(2));
    negativo = negativo || TirarSinal(texto);
    if (APercentual && texto.ends_with(u'%')) texto = SemEspacosEmVolta(texto.substr(0, texto.size() - 1));

    std::u16string numero(texto);
    for (char16_t& c : numero) {
        if (c == CEspacoSemQuebra || c == CEspacoEstreito) c = u' ';
        const bool marca = c == u'.' || c == u',' || c == u' ' || c == u'\'' || c == AFormatos.ThousandSeparator ||
                           c == AFormatos.DecimalSeparator;
        if (!EhDigito(c) && !marca) return std::nullopt;
    }
    const std::size_t decimal = BuscarMarcaDecimal(numero, AFormatos.DecimalSeparator);
    const auto inteiro = LerInteiro(std::u16string_view(numero).substr(0, decimal));
    const std::u16string decimais = decimal == numero.npos ? u"" : numero.substr(decimal + 1);
    if (!inteiro || !std::ranges::all_of(decimais, EhDigito) || (inteiro->empty() && decimais.empty()))
        return std::nullopt;
    std::u16string lido = (negativo ? u"-" : u"") + *inteiro;
    if (decimal != numero.npos) lido += AFormatos.DecimalSeparator + decimais;
    return lido;
}

}  // namespace OryUtils::Interno
