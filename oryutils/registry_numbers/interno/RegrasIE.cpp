#include "oryutils/registry_numbers/interno/RegrasIE.hpp"

#include <algorithm>
#include <bit>

namespace OryUtils::RegrasIE {
namespace {

/// The check digit of each sum, for the rules that need no more.
constexpr auto CDigitoDaSoma = [] {
    std::array<std::array<std::uint8_t, CMaiorSoma + 1>, rdDez + 1> digitos{};
    for (int soma = 0; soma <= CMaiorSoma; ++soma) {
        const auto coluna = static_cast<std::size_t>(soma);
        digitos[rdPadrao][coluna] = static_cast<std::uint8_t>(CalcularDigitoPadrao(soma % 11));
        digitos[rdVezesDez][coluna] = static_cast<std::uint8_t>(soma * 10 % 11 % 10);
        digitos[rdOnze][coluna] = static_cast<std::uint8_t>((11 - soma % 11) % 10);
        digitos[rdUltimo][coluna] = static_cast<std::uint8_t>(soma % 11 % 10);
        digitos[rdNove][coluna] = static_cast<std::uint8_t>(soma % 9);
        digitos[rdDez][coluna] = static_cast<std::uint8_t>((10 - soma % 10) % 10);
    }
    return digitos;
}();

constexpr int ValorDe(char16_t ADigito) noexcept { return ADigito - u'0'; }

constexpr int CalcularDigitoPelaSoma(TRegraDigito ARegra, int ASoma) noexcept {
    return CDigitoDaSoma[ARegra][static_cast<unsigned>(ASoma)];
}

int BuscarNumeroDe8Digitos(std::u16string_view AIE) noexcept {
    int numero = 0;
    for (const char16_t c : AIE.substr(0, 8)) numero = numero * 10 + ValorDe(c);
    return numero;
}

int CalcularDigitoGoias(int ASoma, std::u16string_view AIE) noexcept {
    if (ASoma % 11 != 1) return CalcularDigitoPelaSoma(rdPadrao, ASoma);
    const int numero = BuscarNumeroDe8Digitos(AIE);
    return numero >= 10103105 && numero <= 10119997 ? 1 : 0;
}

int CalcularDigitoAmapa(int ASoma, std::u16string_view AIE) noexcept {
    struct TFaixa {
        int Primeiro, Parcela, DigitoDoOnze;
    };
    // Numbers from Primeiro up to the next row; below the first company number eleven becomes what no digit can be.
    static constexpr TFaixa CFaixas[] = {{3019023, 0, 0}, {3017001, 9, 1}, {3000001, 5, 0}, {0, 999, 999}};
    const int numero = BuscarNumeroDe8Digitos(AIE);
    const TFaixa& faixa = *std::ranges::find_if(CFaixas, [&](const TFaixa& f) { return numero >= f.Primeiro; });
    const int digito = 11 - (faixa.Parcela + ASoma) % 11;
    if (digito == 10) return 0;
    return digito == 11 ? faixa.DigitoDoOnze : digito;
}

/// The digits of a product by 2 add up to the product less 9 when it has two of them, which for a multiple of ten is
/// one more.
int CalcularDigitoAlgarismos(const TFormatosIE::TDigito& ADigito, int ASoma, std::u16string_view AIE) noexcept {
    const char16_t* inicio = AIE.data();
    const char16_t* fim = inicio + AIE.size() - CBloco;
    for (std::size_t i = 0; i < CBloco; ++i)
        ASoma += (ADigito.PesosDoInicio[i] == 2 && inicio[i] >= u'5') + (ADigito.PesosDoFim[i] == 2 && fim[i] >= u'5');
    return CalcularDigitoPelaSoma(rdDez, ASoma);
}

int CalcularDigito(const TFormatosIE::TDigito& ADigito, int ASoma, std::u16string_view AIE) noexcept {
    switch (ADigito.Regra) {
        case rdGoias:
            return CalcularDigitoGoias(ASoma, AIE);
        case rdAmapa:
            return CalcularDigitoAmapa(ASoma, AIE);
        case rdAlgarismos:
            return CalcularDigitoAlgarismos(ADigito, ASoma, AIE);
        default:
            return CalcularDigitoPelaSoma(ADigito.Regra, ASoma);
    }
}

/// ADigito1 and ADigito2 are what the digits must be.
inline TMotivoRecusa Comparar(const TFormatosIE::TFormato& AFormato, const char16_t* AIE, int ADigito1,
                              int ADigito2) noexcept {
    const bool certos =
        (ValorDe(AIE[AFormato.Digito1.Indice]) == ADigito1) & (ValorDe(AIE[AFormato.Digito2.Indice]) == ADigito2);
    return certos ? mrNenhum : mrDigito;
}

// Out of line: the regular formats then need no registers saved.
[[gnu::noinline]] TMotivoRecusa ConferirIrregular(const TFormatosIE::TFormato& AFormato, std::u16string_view AIE,
                                                  int ASoma1, int ASoma2) noexcept {
    return Comparar(AFormato, AIE.data(), CalcularDigito(AFormato.Digito1, ASoma1, AIE),
                    CalcularDigito(AFormato.Digito2, ASoma2, AIE));
}

using TBloco = std::array<std::uint16_t, CBloco>;
using TMetades = std::array<std::uint64_t, 2>;

/// The sum of all lanes, each with its weights. No sum is too large for a lane.
inline int Somar(const TBloco& AInicio, const TBloco& AFim, const TFormatosIE::TDigito& ADigito) noexcept {
    static_assert(CMaiorSoma <= 0xFFFF);
    TBloco somas;
    for (std::size_t i = 0; i < CBloco; ++i)
        somas[i] = static_cast<std::uint16_t>(AInicio[i] * ADigito.PesosDoInicio[i] + AFim[i] * ADigito.PesosDoFim[i]);
    const auto metades = std::bit_cast<TMetades>(somas);
    // The highest lane of the product is the sum of four.
    return static_cast<int>((metades[0] + metades[1]) * 0x0001'0001'0001'0001 >> 48);
}

/// The first format from APrimeiro on that has this start; null when there is none.
const TFormatosIE::TFormato* BuscarPeloInicio(const TFormatosIE::TFormato* APrimeiro, std::uint64_t AInicio) noexcept {
    for (const TFormatosIE::TFormato* formato = APrimeiro;; ++formato) {
        for (const TInicioIE& inicio : formato->Inicios)
            if ((AInicio & inicio.Mascara) == inicio.Valor) return formato;
        if (!formato->OutroInicio) return nullptr;
    }
}

TMotivoRecusa ConferirFormatos(const TFormatosIE::TFormato* APrimeiro, std::u16string_view AIE) noexcept {
    const char16_t* inicio = AIE.data();
    const char16_t* fim = inicio + AIE.size() - CBloco;
    TBloco a, b, bits;
    for (std::size_t i = 0; i < CBloco; ++i) {
        a[i] = static_cast<std::uint16_t>(inicio[i] - u'0');
        b[i] = static_cast<std::uint16_t>(fim[i] - u'0');
        // Above 9 a value, or the value and 6 more, has bits beyond the lowest four.
        bits[i] = static_cast<std::uint16_t>(a[i] | (a[i] + 6) | b[i] | (b[i] + 6));
    }
    const auto metades = std::bit_cast<TMetades>(bits);
    if ((metades[0] | metades[1]) & 0xFFF0'FFF0'FFF0'FFF0) return mrCaractere;
    const TFormatosIE::TFormato* formato = BuscarPeloInicio(APrimeiro, LerInicio(inicio));
    if (!formato) return mrPrefixo;
    const int soma1 = Somar(a, b, formato->Digito1);
    const int soma2 = Somar(a, b, formato->Digito2);
    if (formato->Irregular) return ConferirIrregular(*formato, AIE, soma1, soma2);
    return Comparar(*formato, inicio, CalcularDigitoPelaSoma(formato->Digito1.Regra, soma1),
                    CalcularDigitoPelaSoma(formato->Digito2.Regra, soma2));
}

}  // namespace

TMotivoRecusa Conferir(const TFormatosIE& AFormatos, std::u16string_view AIE) noexcept {
    const std::size_t lugar = AIE.size() <= CMaiorTamanho ? AFormatos.PorTamanho[AIE.size()] : 0;
    if (lugar == 0) return mrTamanho;
    return ConferirFormatos(&AFormatos.Formatos[lugar - 1], AIE);
}

}  // namespace OryUtils::RegrasIE
