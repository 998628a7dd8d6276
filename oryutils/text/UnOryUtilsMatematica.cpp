#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include "oryutils/runtime/Costura.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace OryUtils {

constinit TInstanciaGlobal<TOryUtilsMatematica> GOryUtilsMatematica;

namespace {

constexpr Extended CCentimetrosPorPolegada = 2.54L;

/// The low 32 bits of a whole number, as a signed number; 0 when it is not finite.
int Baixos32Bits(Extended AInteiro) noexcept {
    if (!std::isfinite(AInteiro)) return 0;
    return static_cast<int>(static_cast<std::int64_t>(std::fmod(AInteiro, 0x1p32L)));
}

/// 10 to APotencia, correctly rounded to TFloat; infinity when it does not fit.
template <typename TFloat>
TFloat PotenciaDe10(int APotencia) noexcept {
    Extended potencia = 1;
    for (; APotencia > 0; --APotencia) potencia *= 10;
    return potencia > std::numeric_limits<TFloat>::max() ? std::numeric_limits<TFloat>::infinity()
                                                         : static_cast<TFloat>(potencia);
}

/// Half up from the last of the considered decimals, one digit after the other.
Extended ArredondarEmCascata(Extended AValor, Extended AFator, int ACasas, int ACasasAConsiderar) noexcept {
    const Extended inteiro = std::trunc(AValor);
    const Extended base = inteiro - std::fmod(inteiro, 10.0L);
    Extended digitos = std::trunc((AValor - base) * PotenciaDe10<Extended>(ACasasAConsiderar));
    int casas = ACasasAConsiderar;
    constexpr Extended CCabeEm64Bits = 0x1p63L;
    // Only with more than 17 decimals are the first steps beyond 64 bits.
    for (; casas > ACasas && digitos >= CCabeEm64Bits; --casas) {
        const Extended ultimo = std::fmod(digitos, 10.0L);
        digitos = std::trunc((digitos - ultimo) / 10) + (ultimo >= 5 ? 1 : 0);
    }
    if (casas > ACasas) {
        auto resto = static_cast<std::int64_t>(digitos);
        for (; casas > ACasas; --casas) resto = resto / 10 + (resto % 10 >= 5);
        digitos = static_cast<Extended>(resto);
    }
    return digitos / AFator + base;
}

/// Cuts the text of AMagnitude behind the decimal comma; none when what is left is no number.
std::optional<Extended> TruncarTexto(Extended AMagnitude, std::size_t ACasas) noexcept {
    const TFormatSettings& formatos = FormatSettings();
    std::array<char16_t, CTamanhoMaximoExtended> texto;
    const std::u16string_view escrito = EscreverExtended(AMagnitude, texto, formatos.DecimalSeparator);
    const std::size_t virgula = escrito.find(u',');
    return TentarTextoParaExtended(
        virgula == std::u16string_view::npos ? escrito : escrito.substr(0, virgula + 1 + ACasas), formatos);
}

}  // namespace

Extended TOryUtilsMatematica::Arredondar(Extended AValor) { return Arredondar(AValor, maMatematico, 2, 10); }

Extended TOryUtilsMatematica::Arredondar(Extended AValor, TMetodoArredondamento AMetodo, std::uint8_t ACasas,
                                         std::uint8_t ACasasAConsiderar) {
    if (!TemPrecisaoPlena())
        return ComPrecisaoPlena([&] { return Arredondar(AValor, AMetodo, ACasas, ACasasAConsiderar); });
    const Extended fator = PotenciaDe10<float>(ACasas);
    if (!std::isfinite(AValor) || !std::isfinite(fator)) return AValor;
    Extended x = std::abs(AValor);
    switch (AMetodo) {
        case maMatematico:
            x = ArredondarEmCascata(x, fator, ACasas, ACasasAConsiderar);
            break;
        case maTruncamento: {
            if (FormatSettings().DecimalSeparator != u',') return AValor;
            const auto lido = TruncarTexto(x, ACasas);
            if (!lido) return AValor;
            x = *lido;
            break;
        }
        case maParaCima: {
            const Extended inteiro = std::trunc(x);
            x = inteiro + static_cast<Extended>(Baixos32Bits(std::ceil((x - inteiro) * fator))) / fator;
            break;
        }
        case maParaBaixo:
            x = std::trunc(x * fator) / fator;
            break;
        case maNenhum:
        default:
            break;
    }
    return AValor < 0 ? -x : x;
}

std::u16string TOryUtilsMatematica::BuscarValorPorExtenso(Extended AValor) {
    TConverterPorExtenso conversor;
    conversor.SetValor(AValor);
    return conversor.FTexto ? std::move(*conversor.FTexto) : conversor.BuscarValorPorExtenso();
}

Extended TOryUtilsMatematica::ConverterCentimetrosParaPolegadas(Extended AValor) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return ConverterCentimetrosParaPolegadas(AValor); });
    return AValor / CCentimetrosPorPolegada;
}

int TOryUtilsMatematica::ConverterCentimetrosParaPixels(Extended AValor) {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return ConverterCentimetrosParaPixels(AValor); });
    const auto pixelsPorPolegada = static_cast<Extended>(CosturaInterface().BuscarPixelsPorPolegada());
    return Baixos32Bits(std::trunc(pixelsPorPolegada / CCentimetrosPorPolegada * AValor));
}

int TOryUtilsMatematica::SomarCombinacaoBinaria(const std::vector<bool>& AValores, int AValorInicial,
                                                bool AConsiderarZero) {
    constexpr std::array CValoresBinarios{0, 1, 2, 4, 8, 16, 32, 64, 128, 256};
    if (AConsiderarZero && !AValores.empty() && AValores.front()) return 0;
    if (AConsiderarZero && AValorInicial != 0) {
        CosturaInterface().Erro(
            u"Para considerar o valor 0 (zero), é necessário que o argumento <<AValorInicial>>também seja zero.");
        Abort();
    }
    int soma = 0;
    std::int64_t indice = AValorInicial;
    for (const bool marcado : AValores) {
        if (marcado) {
            if (indice < 0 || indice >= std::ssize(CValoresBinarios))
                throw Exception(u"Argumento <AValores> tem um item marcado fora da tabela de valores binários: " +
                                InteiroParaTexto(indice) + u".");
            soma += CValoresBinarios[static_cast<std::size_t>(indice)];
        }
        ++indice;
    }
    return soma;
}

bool TOryUtilsMatematica::EstahNaCombinacaoBinaria(std::int64_t AValor, std::int64_t AValorBinarioComparacao) {
    if (AValorBinarioComparacao == 0) return AValor == 0;
    return (AValor & AValorBinarioComparacao) == AValorBinarioComparacao;
}

}  // namespace OryUtils
