// Amounts of money in words.
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/interno/PrecisaoPlena.hpp"
#include "oryutils/runtime/interno/QuinzeDigitos.hpp"
#include "oryutils/text/UnOryUtilsMatematica.hpp"
#include "oryutils/text/interno/PalavrasNumeros.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <utility>

namespace OryUtils {
namespace {

using Interno::CPalavraCem;
using Interno::CPalavrasAte99;
using Interno::CPalavrasCentenas;
using Interno::CPalavrasCentenasE;
using Interno::TPalavras;

/// Words under construction; there is room for those of any amount but its currency.
class TFrase {
public:
    TFrase() = default;
    void operator+=(std::u16string_view ATexto) noexcept {
        std::memcpy(FFim, ATexto.data(), ATexto.size() * sizeof(char16_t));
        FFim += ATexto.size();
    }
    void operator+=(const TPalavras& APalavras) noexcept {
        std::memcpy(FFim, APalavras.Texto.data(), sizeof APalavras.Texto);
        FFim += APalavras.Tamanho;
    }
    void AcrescentarGrupo(unsigned AGrupo) noexcept {
        const unsigned centena = AGrupo / 100;
        const unsigned dezena = AGrupo % 100;
        if (dezena == 0 && centena > 0) {
            *this += centena == 1 ? CPalavraCem : CPalavrasCentenas[centena - 1];
            return;
        }
        if (centena > 0) *this += CPalavrasCentenasE[centena];
        *this += CPalavrasAte99[dezena];
    }
    bool EhVazia() const noexcept { return FFim == FTexto.data(); }
    std::size_t GetTamanho() const noexcept { return static_cast<std::size_t>(FFim - FTexto.data()); }
    std::u16string_view GetTexto() const noexcept { return {FTexto.data(), GetTamanho()}; }

private:
    // Five groups of at most 33 characters with their scales, and the width of the last copy.
    std::array<char16_t, 320> FTexto;
    char16_t* FFim = FTexto.data();
};

/// The amount written as "#,##0.00" and cut at its separators: thousands groups, then the cents.
struct TGrupos {
    int Quantidade = 0;
    std::array<unsigned, 8> Valor{};
};

/// Half a unit of the 18th significant digit of AValor, in cents: numbers are written from 18 digits, so 1.005, which
/// has no exact binary form, is 1.01 on whichever side of it the nearest one lies.
Extended BuscarFolgaDoDecimoOitavoDigito(Extended AValor) noexcept {
    if (AValor < 0.01L) return 5e-19L;
    if (AValor < 0.1L) return 5e-18L;
    if (AValor < 1) return 5e-17L;
    Extended folga = 5e-16L;
    for (std::size_t i = 1; AValor >= CPotenciasDe10[i]; ++i) folga *= 10;
    return folga;
}

TGrupos SepararGrupos(Extended AValor) noexcept {
    TGrupos grupos;
    constexpr Extended CCabeEm18Digitos = 1e16L;
    if (AValor < CCabeEm18Digitos) {
        auto inteiro = static_cast<std::uint64_t>(AValor);
        const Extended centavos = (AValor - static_cast<Extended>(inteiro)) * 100;
        auto resto = static_cast<unsigned>(centavos + 0.5L + BuscarFolgaDoDecimoOitavoDigito(AValor));
        if (resto >= 100) {
            resto -= 100;
            ++inteiro;
        }
        std::array<unsigned, 6> invertidos{};
        std::size_t quantos = 0;
        do {
            invertidos[quantos++] = static_cast<unsigned>(inteiro % 1000);
            inteiro /= 1000;
        } while (inteiro > 0);
        std::reverse_copy(invertidos.data(), invertidos.data() + quantos, grupos.Valor.data());
        grupos.Valor[quantos] = resto;
        grupos.Quantidade = static_cast<int>(quantos) + 1;
        return grupos;
    }
    // Beyond the range that reads right: the words take the first five groups only.
    std::array<char16_t, CTamanhoMaximoInteiro> texto;
    const std::u16string_view digitos = EscreverZeros(AValor, 1, texto);
    grupos.Quantidade = static_cast<int>((digitos.size() + 2) / 3) + 1;
    std::size_t no_grupo = (digitos.size() + 2) % 3;  // so many digits of the group follow
    for (std::size_t i = 0, grupo = 0; grupo < 5 && i < digitos.size(); ++i) {
        grupos.Valor[grupo] = grupos.Valor[grupo] * 10 + static_cast<unsigned>(digitos[i] - u'0');
        if (no_grupo-- == 0) {
            no_grupo = 2;
            ++grupo;
        }
    }
    return grupos;
}

/// Only these amounts take " DE " before the currency.
bool PedeDe(std::int32_t AInteiro) noexcept {
    return AInteiro == 1'000'000 || AInteiro == 10'000'000 || AInteiro == 100'000'000 || AInteiro == 1'000'000'000;
}

}  // namespace

std::u16string TConverterPorExtenso::BuscarValorPorExtenso() const {
    if (!TemPrecisaoPlena()) return ComPrecisaoPlena([&] { return BuscarValorPorExtenso(); });
    if (FValor == 0) return u"ZERO " + FMoedaNoPlural;

    const TGrupos grupos = SepararGrupos(FValor);
    const int quantos = grupos.Quantidade;
    const auto* grupo = grupos.Valor.data();
    TFrase frase;
    if (quantos > 4) {
        frase.AcrescentarGrupo(*grupo);
        frase += *grupo == 1 ? std::u16string_view(u" BILHÃO") : std::u16string_view(u" BILHÕES");
        ++grupo;
    }
    if (quantos > 3) {
        if (*grupo != 0) {
            if (!frase.EhVazia()) frase += std::u16string_view(u", ");
            frase.AcrescentarGrupo(*grupo);
            frase += *grupo == 1 ? std::u16string_view(u" MILHÃO") : std::u16string_view(u" MILHÕES");
        }
        ++grupo;
    }
    if (quantos > 2) {
        if (*grupo != 0) {
            if (!frase.EhVazia()) frase += std::u16string_view(u", ");
            frase.AcrescentarGrupo(*grupo);
            frase += std::u16string_view(u" MIL");
        }
        ++grupo;
    }
    if (*grupo > 0) {
        if (!frase.EhVazia()) frase += std::u16string_view(u" E ");
        frase.AcrescentarGrupo(*grupo);
    }
    ++grupo;

    // The words above come from the rounded amount, the currency from the amount itself.
    const auto inteiro =
        static_cast<std::int32_t>(static_cast<std::int64_t>(FValor < 0x1p63L ? FValor : std::fmod(FValor, 0x1p32L)));
    std::u16string_view moeda;
    if (inteiro != 0) {
        frase += PedeDe(inteiro) ? std::u16string_view(u" DE ") : std::u16string_view(u" ");
        moeda = inteiro == 1 ? FMoedaNoSingular : FMoedaNoPlural;
    }
    const std::size_t lugar_da_moeda = frase.GetTamanho();
    if (*grupo != 0) {
        if (inteiro > 0) frase += std::u16string_view(u" E ");
        frase.AcrescentarGrupo(*grupo);
        frase += *grupo == 1 ? std::u16string_view(u" CENTAVO") : std::u16string_view(u" CENTAVOS");
        if (inteiro == 0) frase += std::u16string_view(u" DE ");
    }

    const std::u16string_view palavras = frase.GetTexto();
    const bool moeda_no_fim = inteiro == 0 && *grupo != 0;
    std::u16string texto;
    texto.reserve(palavras.size() + std::max(moeda.size(), FMoedaNoSingular.size()));
    texto.append(palavras.substr(0, lugar_da_moeda)).append(moeda).append(palavras.substr(lugar_da_moeda));
    if (moeda_no_fim) texto.append(FMoedaNoSingular);
    return texto;
}

std::u16string TConverterPorExtenso::TratarGrupo(std::u16string_view AGrupo) const {
    const int valor = TextoParaInt(AGrupo);
    TFrase frase;
    if (valor >= 0 && valor <= 999) frase.AcrescentarGrupo(static_cast<unsigned>(valor));
    return std::u16string(frase.GetTexto());
}

void TConverterPorExtenso::SetValor(Extended AValor) {
    if (AValor == FValor) return;
    if (AValor < 0) throw Exception(u"O valor deve ser sempre maior ou igual a 0,00");
    if (!std::isfinite(AValor)) throw EConvertError(u"'" + ExtendedParaTexto(AValor) + u"' não é um valor válido");
    const Extended anterior = std::exchange(FValor, AValor);
    try {
        FTexto = BuscarValorPorExtenso();
    } catch (...) {
        FValor = anterior;
        throw;
    }
}

const std::u16string& TConverterPorExtenso::GetTexto() const {
    if (!FTexto) FTexto = BuscarValorPorExtenso();
    return *FTexto;
}

}  // namespace OryUtils
