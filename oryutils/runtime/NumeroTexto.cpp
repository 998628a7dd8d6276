#include "oryutils/runtime/NumeroTexto.hpp"

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/ConversaoExata.hpp"
#include "oryutils/runtime/interno/InteiroLongo.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/runtime/interno/QuinzeDigitos.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace OryUtils {
namespace {

using TLimites = std::numeric_limits<Extended>;
static_assert(TLimites::digits >= 64, "Extended holds every 64-bit integer");

[[noreturn]] void RecusarConversao(std::u16string_view ATexto, std::u16string_view ATipo) {
    throw EConvertError(u"'" + std::u16string(ATexto) + u"' não é um valor " + std::u16string(ATipo) + u" válido");
}

/// Takes a sign off the front of ATexto; true when it was "-".
bool RetirarSinal(std::u16string_view& ATexto) noexcept {
    if (ATexto.empty() || (ATexto.front() != u'-' && ATexto.front() != u'+')) return false;
    const bool negativo = ATexto.front() == u'-';
    ATexto.remove_prefix(1);
    return negativo;
}

/// Numbers with so many places before the comma overflow, and with so few round to zero.
constexpr std::int64_t CMaiorOrdem = TLimites::max_exponent10 + 2;
constexpr std::int64_t CMenorOrdem = TLimites::min_exponent10 - TLimites::digits;

std::optional<TDecimalEscrito> LerDecimal(std::u16string_view ATexto, char16_t ASeparador) noexcept {
    TDecimalEscrito decimal;
    std::size_t i = 0;
    bool temDigito = false;
    bool temSeparador = false;
    for (; i < ATexto.size(); ++i) {
        if (ATexto[i] == ASeparador && !temSeparador) {
            temSeparador = true;
            continue;
        }
        if (!EhDigito(ATexto[i])) break;
        temDigito = true;
        decimal.Expoente -= temSeparador;
        const auto digito = static_cast<unsigned>(ATexto[i] - u'0');
        if (decimal.Significativos == 0 && digito == 0) continue;
        if (++decimal.Significativos <= CDigitosEm64Bits) decimal.Inicio = decimal.Inicio * 10 + digito;
    }
    if (!temDigito) return std::nullopt;
    decimal.Digitos = ATexto.substr(0, i);
    if (i == ATexto.size()) return decimal;

    if (ATexto[i] != u'E' && ATexto[i] != u'e') return std::nullopt;
    ATexto.remove_prefix(i + 1);
    const bool negativo = RetirarSinal(ATexto);
    if (ATexto.empty()) return std::nullopt;
    std::int64_t expoente = 0;
    for (const char16_t c : ATexto) {
        if (!EhDigito(c)) return std::nullopt;
        expoente = std::min<std::int64_t>(expoente * 10 + (c - u'0'), std::numeric_limits<std::int32_t>::max());
    }
    decimal.Expoente += negativo ? -expoente : expoente;
    return decimal;
}

std::optional<Extended> ConverterDecimal(const TDecimalEscrito& ADecimal) noexcept {
    if (ADecimal.Significativos == 0) return Extended{0};
    const std::int64_t ordem = ADecimal.Significativos + ADecimal.Expoente;
    if (ordem > CMaiorOrdem) return std::nullopt;
    if (ordem < CMenorOrdem) return Extended{0};
    if (ADecimal.Significativos > CDigitosEm64Bits || std::abs(ADecimal.Expoente) > CPotenciaExata)
        return ConverterExato(ADecimal);
    // Both numbers are exact, so the one operation rounds once.
    return MultiplicarPorPotenciaDe10(static_cast<Extended>(ADecimal.Inicio), static_cast<int>(ADecimal.Expoente));
}

/// Writes at ADestino and answers the end of what was written.
char16_t* EscreverInteiro(char16_t* ADestino, std::int64_t AValor) noexcept {
    std::array<char, 24> texto{};
    const auto fim = std::to_chars(texto.data(), texto.data() + texto.size(), AValor).ptr;
    return std::copy(texto.data(), fim, ADestino);
}

}  // namespace

std::optional<std::int64_t> TentarTextoParaInt64(std::u16string_view ATexto) noexcept {
    while (!ATexto.empty() && EhBranco(ATexto.front())) ATexto.remove_prefix(1);
    const bool negativo = RetirarSinal(ATexto);
    if (ATexto.empty()) return std::nullopt;
    // The negative side holds one number more: count down.
    constexpr std::int64_t CMenor = std::numeric_limits<std::int64_t>::min();
    std::int64_t valor = 0;
    for (const char16_t c : ATexto) {
        if (!EhDigito(c)) return std::nullopt;
        const int digito = c - u'0';
        if (valor < CMenor / 10 || valor * 10 < CMenor + digito) return std::nullopt;
        valor = valor * 10 - digito;
    }
    if (negativo) return valor;
    return valor == CMenor ? std::nullopt : std::optional(-valor);
}

std::int64_t TextoParaInt64Padrao(std::u16string_view ATexto, std::int64_t APadrao) noexcept {
    return TentarTextoParaInt64(ATexto).value_or(APadrao);
}

int TextoParaIntPadrao(std::u16string_view ATexto, int APadrao) noexcept {
    const std::int64_t valor = TextoParaInt64Padrao(ATexto, APadrao);
    return valor == static_cast<int>(valor) ? static_cast<int>(valor) : APadrao;
}

std::int64_t TextoParaInt64(std::u16string_view ATexto) {
    if (const auto valor = TentarTextoParaInt64(ATexto)) return *valor;
    RecusarConversao(ATexto, u"inteiro");
}

int TextoParaInt(std::u16string_view ATexto) {
    const std::int64_t valor = TextoParaInt64(ATexto);
    if (valor == static_cast<int>(valor)) return static_cast<int>(valor);
    RecusarConversao(ATexto, u"inteiro");
}

std::optional<Extended> TentarTextoParaExtended(std::u16string_view ATexto, const TFormatSettings& AFormatos) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return TentarTextoParaExtended(ATexto, AFormatos); });
    ATexto = Aparar(ATexto);
    const bool negativo = RetirarSinal(ATexto);
    const auto decimal = LerDecimal(ATexto, AFormatos.DecimalSeparator);
    if (!decimal) return std::nullopt;
    const auto valor = ConverterDecimal(*decimal);
    return valor && negativo ? -*valor : valor;
}

Extended TextoParaExtendedPadrao(std::u16string_view ATexto, Extended APadrao,
                                 const TFormatSettings& AFormatos) noexcept {
    return TentarTextoParaExtended(ATexto, AFormatos).value_or(APadrao);
}

Extended TextoParaExtended(std::u16string_view ATexto, const TFormatSettings& AFormatos) {
    if (const auto valor = TentarTextoParaExtended(ATexto, AFormatos)) return *valor;
    RecusarConversao(ATexto, u"de ponto flutuante");
}

TDigitosDecimais SepararDigitos(Extended AValor, int AQuantidade) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return SepararDigitos(AValor, AQuantidade); });
    std::uint64_t primeiroLongo = 1;
    for (int i = 0; i < AQuantidade; ++i) primeiroLongo *= 10;
    const TBinario binario = SepararBinario(AValor);
    // Digits before the comma less one, or one less than that: log10(2) is 0.30103.
    int ordem = static_cast<int>(std::floor((binario.Expoente + 63) * 0.30102999566398120));
    std::uint64_t valor = EscalarExato(binario, AQuantidade - 1 - ordem);
    if (valor >= primeiroLongo) valor = EscalarExato(binario, AQuantidade - 1 - ++ordem);
    return {valor, ordem};
}

TQuinzeDigitos SepararQuinzeDigitosLongo(Extended AValor) noexcept {
    const TDigitosDecimais decimal = SepararDigitos(AValor, 15);
    return {static_cast<Extended>(decimal.Digitos), decimal.Ordem};
}

Extended ArredondarPara15Digitos(Extended AValor) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return ArredondarPara15Digitos(AValor); });
    if (!std::isfinite(AValor)) return AValor;
    const Extended magnitude = std::abs(AValor);
    if (magnitude < CPrimeiroDe16Digitos && ArredondarAoInteiro(magnitude) == magnitude)
        return magnitude == 0 ? 0 : AValor;
    const TQuinzeDigitos decimal = SepararQuinzeDigitos(magnitude);
    const int expoente = decimal.Ordem - 14;
    const TDecimalEscrito escrito{
        .Expoente = expoente, .Significativos = 15, .Inicio = static_cast<std::uint64_t>(decimal.Digitos)};
    const Extended arredondado = ConverterDecimal(escrito).value_or(TLimites::infinity());
    return AValor < 0 ? -arredondado : arredondado;
}

std::u16string_view EscreverExtended(Extended AValor, std::span<char16_t, CTamanhoMaximoExtended> ADestino,
                                     char16_t ASeparadorDecimal) noexcept {
    if (!TemPrecisaoPlena())
        return ComPrecisaoPlena([&] { return EscreverExtended(AValor, ADestino, ASeparadorDecimal); });
    if (std::isnan(AValor)) return u"NAN";
    if (std::isinf(AValor)) return AValor < 0 ? u"-INF" : u"INF";
    if (AValor == 0) return u"0";

    char16_t* fim = ADestino.data();
    const auto escrito = [&] { return std::u16string_view(ADestino.data(), fim); };
    const Extended magnitude = std::abs(AValor);
    if (AValor < 0) *fim++ = u'-';
    if (magnitude < CPrimeiroDe16Digitos && ArredondarAoInteiro(magnitude) == magnitude) {
        fim = EscreverInteiro(fim, static_cast<std::int64_t>(magnitude));
        return escrito();
    }

    const auto [valor, ordem] = SepararQuinzeDigitos(magnitude);
    constexpr int CDigitos = 15;
    std::array<char16_t, 24> digitos{};
    const char16_t* resto = digitos.data();
    const char16_t* fimDosDigitos = EscreverInteiro(digitos.data(), static_cast<std::int64_t>(valor));
    while (fimDosDigitos[-1] == u'0') --fimDosDigitos;

    const bool cientifico = ordem >= CDigitos || ordem < -4;
    int inteiros = cientifico ? 1 : ordem + 1;
    if (inteiros <= 0) *fim++ = u'0';
    for (; inteiros > 0; --inteiros) *fim++ = resto < fimDosDigitos ? *resto++ : u'0';
    if (resto < fimDosDigitos) {
        *fim++ = ASeparadorDecimal;
        for (; inteiros < 0; ++inteiros) *fim++ = u'0';
        fim = std::copy(resto, fimDosDigitos, fim);
    }
    if (cientifico) {
        *fim++ = u'E';
        fim = EscreverInteiro(fim, ordem);
    }
    return escrito();
}

std::u16string ExtendedParaTexto(Extended AValor, const TFormatSettings& AFormatos) {
    std::array<char16_t, CTamanhoMaximoExtended> texto;
    return std::u16string(EscreverExtended(AValor, texto, AFormatos.DecimalSeparator));
}

std::u16string_view EscreverInt64(std::int64_t AValor, std::span<char16_t, CTamanhoMaximoInt64> ADestino) noexcept {
    char16_t* inicio = ADestino.data() + ADestino.size();
    // The lowest number has no positive partner of its own type.
    auto magnitude = static_cast<std::uint64_t>(AValor);
    if (AValor < 0) magnitude = 0 - magnitude;
    do *--inicio = static_cast<char16_t>(u'0' + magnitude % 10);
    while (magnitude /= 10);
    if (AValor < 0) *--inicio = u'-';
    return {inicio, ADestino.data() + ADestino.size()};
}

std::u16string InteiroParaTexto(std::int64_t AValor) {
    std::array<char16_t, CTamanhoMaximoInt64> texto;
    return std::u16string(EscreverInt64(AValor, texto));
}

std::u16string_view EscreverZeros(Extended AValor, int ADigitos, std::span<char16_t> ADestino) noexcept {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return EscreverZeros(AValor, ADigitos, ADestino); });
    if (!std::isfinite(AValor)) AValor = 0;
    const Extended magnitude = std::abs(AValor);
    std::size_t inicio = ADestino.size();
    const auto por = [&](char16_t ACaractere) {
        if (inicio > 0) ADestino[--inicio] = ACaractere;
    };
    const auto porGrupo = [&](std::uint64_t AGrupo, int AMinimo) {
        for (; AGrupo > 0 || AMinimo > 0; AGrupo /= 10, --AMinimo) por(static_cast<char16_t>(u'0' + AGrupo % 10));
    };

    bool zero = false;
    if (magnitude < 0x1p63L) {
        const auto inteiro = static_cast<std::uint64_t>(magnitude);
        const std::uint64_t arredondado = inteiro + (magnitude - static_cast<Extended>(inteiro) >= 0.5L);
        zero = arredondado == 0;
        porGrupo(arredondado, 0);
    } else {
        const TBinario binario = SepararBinario(magnitude);
        TInteiroLongo numero(binario.Mantissa);
        numero.DeslocarEsquerda(binario.Expoente);
        while (!numero.EhZero()) {
            const std::uint32_t grupo = numero.Dividir(1'000'000'000);
            porGrupo(grupo, numero.EhZero() ? 0 : 9);
        }
    }
    for (auto digitos = static_cast<std::int64_t>(ADestino.size() - inicio); digitos < ADigitos && inicio > 0;
         ++digitos)
        por(u'0');
    if (AValor < 0 && !zero) por(u'-');
    return {ADestino.data() + inicio, ADestino.size() - inicio};
}

std::u16string FormatarZeros(Extended AValor, int ADigitos) {
    std::array<char16_t, CTamanhoMaximoInteiro> numero;
    std::u16string texto(EscreverZeros(AValor, 1, numero));
    const std::size_t sinal = texto.front() == u'-';
    const auto digitos = static_cast<std::size_t>(std::max(ADigitos, 1));
    if (texto.size() - sinal < digitos) texto.insert(sinal, digitos - (texto.size() - sinal), u'0');
    return texto;
}

}  // namespace OryUtils
