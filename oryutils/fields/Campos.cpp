#include "oryutils/fields/Campos.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/fields/Mascara.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/interno/ValorDeMoeda.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace OryUtils {
namespace {

constexpr std::array CInteiros{ftSmallint, ftInteger, ftWord, ftAutoInc, ftLargeint, ftLongWord, ftShortint, ftByte};
constexpr std::array CDecimais{ftFloat, ftCurrency, ftBCD, ftFMTBcd, ftExtended, ftSingle};

[[noreturn]] void RecusarTipo() { throw EInvalidCast(u"Conversão de classe inválida"); }

bool EhCampoDeData(TFieldType ATipo) {
    return ATipo == ftDate || ATipo == ftTime || ATipo == ftDateTime || ATipo == ftTimeStamp;
}

/// The number of a value that is one.
std::optional<Extended> BuscarNumero(const Variant& AValor) {
    const Variant::TValor& valor = AValor.GetValor();
    if (const auto* inteiro = std::get_if<std::int64_t>(&valor)) return static_cast<Extended>(*inteiro);
    if (const auto* decimal = std::get_if<Extended>(&valor)) return *decimal;
    if (const auto* moeda = std::get_if<TMoeda>(&valor)) return BuscarValorDaMoeda(*moeda);
    return std::nullopt;
}

}  // namespace

bool EhCampoInteiro(TFieldType ATipo) noexcept { return std::ranges::find(CInteiros, ATipo) != CInteiros.end(); }
bool EhCampoNumerico(TFieldType ATipo) noexcept {
    return EhCampoInteiro(ATipo) || std::ranges::find(CDecimais, ATipo) != CDecimais.end();
}

void TField::SetValor(const Variant& AValor) {
    const bool nenhum =
        std::holds_alternative<TNulo>(AValor.GetValor()) || std::holds_alternative<TNaoAtribuido>(AValor.GetValor());
    FValor = nenhum ? Variant(TNulo{}) : Converter(AValor);
}

void TField::SetEditMask(std::u16string_view AMascara) {
    static_cast<void>(TMascara(AMascara));
    FEditMask = AMascara;
}

std::u16string TField::GetTextoExibido() const { return EhNulo() ? u"" : TMascara(FEditMask).Exibir(GetTexto()); }

std::u16string TField::GetTexto() const {
    const auto* data = std::get_if<TDateTime>(&FValor.GetValor());
    if (!data) return VarianteParaTexto(FValor);
    if (FTipo == ftDate) return FormatarDataHora(FormatSettings().ShortDateFormat, *data);
    return FTipo == ftTime ? FormatarDataHora(FormatSettings().LongTimeFormat, *data) : FormatarDataHora(u"c", *data);
}

void TField::SetTexto(std::u16string_view ATexto) {
    FValor = Aparar(ATexto).empty() ? Variant(TNulo{}) : LerTexto(ATexto);
}

Variant TField::Converter(const Variant& AValor) const {
    if (EhCampoDeData(FTipo) && !std::holds_alternative<TDateTime>(AValor.GetValor())) RecusarTipo();
    return AValor;
}

Variant TField::LerTexto(std::u16string_view ATexto) const {
    if (!EhCampoDeData(FTipo)) return ATexto;
    if (FTipo == ftDate) return TextoParaData(ATexto);
    if (FTipo == ftTime) return TextoParaHora(ATexto);
    if (const auto data = TentarTextoParaDataHora(ATexto)) return *data;
    throw EConvertError(u"'" + std::u16string(ATexto) + u"' não é uma data e hora válida");
}

TNumericField::TNumericField(TFieldType ATipo) : TField(ATipo) {
    if (!EhCampoNumerico(ATipo)) RecusarTipo();
}

std::u16string TNumericField::GetTextoExibido() const { return Formatar(FDisplayFormat); }

std::u16string TNumericField::GetTexto() const { return Formatar(FEditFormat.empty() ? FDisplayFormat : FEditFormat); }

std::u16string TNumericField::Formatar(std::u16string_view AFormato) const {
    const auto numero = BuscarNumero(GetValor());
    if (!numero) return {};
    return AFormato.empty() ? VarianteParaTexto(GetValor()) : FormatarNumero(AFormato, *numero);
}

Variant TNumericField::Converter(const Variant& AValor) const {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return Converter(AValor); });
    if (const std::u16string* texto = AValor.GetTexto()) return LerTexto(*texto);
    const auto numero = BuscarNumero(AValor);
    if (!numero) RecusarTipo();
    if (!EhCampoInteiro(GetTipo())) return *numero;
    const Extended inteiro = std::round(*numero);
    if (!(inteiro >= -0x1p63L && inteiro < 0x1p63L)) RecusarTipo();
    return static_cast<std::int64_t>(inteiro);
}

Variant TNumericField::LerTexto(std::u16string_view ATexto) const {
    if (EhCampoInteiro(GetTipo())) return TextoParaInt64(Aparar(ATexto));
    return TextoParaExtended(ATexto);
}

}  // namespace OryUtils
