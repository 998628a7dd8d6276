#include "oryutils/fields/Campos.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/FormatoNumero.hpp"
#include "oryutils/runtime/interno/ValorDeMoeda.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace OryUtils {
namespace {

/// The kinds of integer and what each holds.
struct TFaixaDeInteiro {
    TFieldType Tipo;
    std::int64_t Menor, Maior;

    template <typename T>
    static constexpr TFaixaDeInteiro De(TFieldType ATipo) {
        return {ATipo, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
    }
};
constexpr std::array CInteiros{
    TFaixaDeInteiro::De<std::int8_t>(ftShortint),   TFaixaDeInteiro::De<std::uint8_t>(ftByte),
    TFaixaDeInteiro::De<std::int16_t>(ftSmallint),  TFaixaDeInteiro::De<std::uint16_t>(ftWord),
    TFaixaDeInteiro::De<std::int32_t>(ftInteger),   TFaixaDeInteiro::De<std::int32_t>(ftAutoInc),
    TFaixaDeInteiro::De<std::uint32_t>(ftLongWord), TFaixaDeInteiro::De<std::int64_t>(ftLargeint),
};
constexpr std::array CDecimais{ftFloat, ftCurrency, ftBCD, ftFMTBcd, ftExtended, ftSingle};

[[noreturn]] void RecusarTipo() { throw EInvalidCast(u"Conversão de classe inválida"); }

std::u16string SoLetrasEDigitos(std::u16string_view ATexto) {
    std::u16string limpo(ATexto);
    std::erase_if(limpo, [](char16_t c) { return !EhDigito(c) && !EhLetra(c); });
    return limpo;
}

const TFaixaDeInteiro* BuscarFaixa(TFieldType ATipo) noexcept {
    const auto* faixa = std::ranges::find(CInteiros, ATipo, &TFaixaDeInteiro::Tipo);
    return faixa == CInteiros.end() ? nullptr : faixa;
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

bool EhCampoDeData(TFieldType ATipo) noexcept {
    return ATipo == ftDate || ATipo == ftTime || ATipo == ftDateTime || ATipo == ftTimeStamp;
}
bool EhCampoInteiro(TFieldType ATipo) noexcept { return BuscarFaixa(ATipo) != nullptr; }
bool EhCampoNumerico(TFieldType ATipo) noexcept {
    return EhCampoInteiro(ATipo) || std::ranges::find(CDecimais, ATipo) != CDecimais.end();
}

void TField::SetValor(const Variant& AValor) {
    const bool nenhum =
        std::holds_alternative<TNulo>(AValor.GetValor()) || std::holds_alternative<TNaoAtribuido>(AValor.GetValor());
    Trocar(nenhum ? Variant(TNulo{}) : Converter(AValor));
}

void TField::SetTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    Trocar(Aparar(ATexto).empty() ? Variant(TNulo{}) : LerTexto(ATexto, AFormatos));
}

void TField::Trocar(Variant AValor) {
    FValor = std::move(AValor);
    Avisar();
}

void TField::Avisar() const {
    const std::vector<TEvento<>> ouvintes = FOuvintes;
    for (const TEvento<>& ouvinte : ouvintes)
        if (std::ranges::find(FOuvintes, ouvinte) != FOuvintes.end()) ouvinte();
}

void TField::SetEditMask(std::u16string_view AMascara) {
    static_cast<void>(TMascara(AMascara));
    FEditMask = AMascara;
    FEscolha = nullptr;
    FSomenteCompleto = false;
    Avisar();
}

void TField::SetEscolhaDeMascara(TEscolhaDeMascara AEscolha) {
    if (AEscolha) static_cast<void>(TMascara(AEscolha(u"")));
    FEditMask.clear();
    FEscolha = AEscolha;
    FSomenteCompleto = false;
    Avisar();
}

TMascara TField::GetMascaraDoTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos) const {
    const std::u16string_view mascara = FEscolha ? FEscolha(SoLetrasEDigitos(ATexto)) : FEditMask;
    if (EhCampoDeData(FTipo)) return TMascara(mascara, AFormatos);
    TFormatSettings comoEscritos;
    comoEscritos.DateSeparator = u'/';
    comoEscritos.TimeSeparator = u':';
    return TMascara(mascara, comoEscritos);
}

std::u16string TField::GetTextoExibido(const TFormatSettings& AFormatos) const {
    if (EhNulo()) return {};
    const std::u16string texto = GetTexto(AFormatos);
    const TMascara mascara = GetMascaraDoTexto(texto, AFormatos);
    if (SoLetrasEDigitos(texto) == texto || mascara.ParaValor(mascara.ParaEdicao(texto)) == texto)
        return mascara.Exibir(texto);
    const auto lido = mascara.LerTexto(texto);
    return lido && !mascara.GravaLiterais() ? mascara.Exibir(mascara.ParaValor(*lido)) : texto;
}

std::u16string TField::GetTexto(const TFormatSettings& AFormatos) const {
    if (const auto* numero = std::get_if<Extended>(&FValor.GetValor())) return ExtendedParaTexto(*numero, AFormatos);
    const auto* data = std::get_if<TDateTime>(&FValor.GetValor());
    if (!data) return VarianteParaTexto(FValor);
    if (FTipo == ftDate) return FormatarDataHora(AFormatos.ShortDateFormat, *data, AFormatos);
    return FTipo == ftTime ? FormatarDataHora(AFormatos.LongTimeFormat, *data, AFormatos)
                           : FormatarDataHora(u"c", *data, AFormatos);
}

std::u16string TField::GetTextoDeEdicao(const TFormatSettings& AFormatos) const { return GetTexto(AFormatos); }

Variant TField::Converter(const Variant& AValor) const {
    if (EhCampoDeData(FTipo) && !std::holds_alternative<TDateTime>(AValor.GetValor())) RecusarTipo();
    return AValor;
}

Variant TField::LerTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos) const {
    if (!EhCampoDeData(FTipo)) return ATexto;
    if (FTipo == ftDate) return TextoParaData(ATexto, AFormatos);
    if (FTipo == ftTime) return TextoParaHora(ATexto, AFormatos);
    if (const auto data = TentarTextoParaDataHora(ATexto, AFormatos)) return *data;
    throw EConvertError(u"'" + std::u16string(ATexto) + u"' não é uma data e hora válida");
}

TNumericField::TNumericField(TFieldType ATipo) : TField(ATipo) {
    if (!EhCampoNumerico(ATipo)) RecusarTipo();
}

std::u16string TNumericField::GetTextoExibido(const TFormatSettings& AFormatos) const {
    return Formatar(FDisplayFormat, AFormatos);
}

std::u16string TNumericField::GetTexto(const TFormatSettings& AFormatos) const {
    return Formatar(FEditFormat.empty() ? FDisplayFormat : FEditFormat, AFormatos);
}

std::u16string TNumericField::GetTextoDeEdicao(const TFormatSettings& AFormatos) const {
    return Formatar(FEditFormat, AFormatos);
}

std::u16string TNumericField::Formatar(std::u16string_view AFormato, const TFormatSettings& AFormatos) const {
    const auto numero = BuscarNumero(GetValor());
    if (!numero) return {};
    const auto* inteiro = std::get_if<std::int64_t>(&GetValor().GetValor());
    // Number formats end where integers of 64 bits still go on.
    if (inteiro && (AFormato.empty() || std::abs(*numero) >= 1e18L)) return InteiroParaTexto(*inteiro);
    return AFormato.empty() ? ExtendedParaTexto(*numero, AFormatos) : FormatarNumero(AFormato, *numero, AFormatos);
}

Variant TNumericField::Converter(const Variant& AValor) const {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return Converter(AValor); });
    if (const std::u16string* texto = AValor.GetTexto()) return LerTexto(*texto, FormatSettings());
    const auto numero = BuscarNumero(AValor);
    if (!numero) RecusarTipo();
    const TFaixaDeInteiro* faixa = BuscarFaixa(GetTipo());
    if (!faixa) return *numero;
    const Extended inteiro = std::round(*numero);
    const bool cabe = inteiro >= static_cast<Extended>(faixa->Menor) && inteiro <= static_cast<Extended>(faixa->Maior);
    if (!cabe) RecusarTipo();
    return static_cast<std::int64_t>(inteiro);
}

Variant TNumericField::LerTexto(std::u16string_view ATexto, const TFormatSettings& AFormatos) const {
    const TFaixaDeInteiro* faixa = BuscarFaixa(GetTipo());
    if (!faixa) return TextoParaExtended(ATexto, AFormatos);
    const std::int64_t inteiro = TextoParaInt64(Aparar(ATexto));
    if (inteiro >= faixa->Menor && inteiro <= faixa->Maior) return inteiro;
    throw EConvertError(u"'" + std::u16string(Aparar(ATexto)) + u"' está fora da faixa do campo: de " +
                        InteiroParaTexto(faixa->Menor) + u" a " + InteiroParaTexto(faixa->Maior));
}

}  // namespace OryUtils
