#include "oryutils/registry_numbers/interno/RegrasIE.hpp"

#include <algorithm>

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

int BuscarNumeroDe8Digitos(std::u16string_view AIE) noexcept {
    int numero = 0;
    for (const char16_t c : AIE.substr(0, 8)) numero = numero * 10 + ValorDe(c);
    return numero;
}

int CalcularDigitoGoias(int AResto, std::u16string_view AIE) noexcept {
    if (AResto != 1) return CalcularDigitoPadrao(AResto);
    const int numero = BuscarNumeroDe8Digitos(AIE);
    return numero >= 10103105 && numero <= 10119997 ? 1 : 0;
}

TRegraDigito BuscarRegraBahia(char16_t APrimeiroDigito) noexcept {
    return APrimeiroDigito == u'6' || APrimeiroDigito == u'7' || APrimeiroDigito == u'9' ? rdPadrao : rdDez;
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

int SomarAlgarismosDosProdutos(const TFormatosIE::TDigito& ADigito, std::u16string_view AIE) noexcept {
    const auto algarismos = [](int AProduto) { return AProduto / 10 + AProduto % 10; };
    const std::u16string_view fim = AIE.substr(AIE.size() - CBloco);
    int soma = 0;
    for (std::size_t i = 0; i < CBloco; ++i)
        soma += algarismos(ValorDe(AIE[i]) * ADigito.PesosDoInicio[i]) +
                algarismos(ValorDe(fim[i]) * ADigito.PesosDoFim[i]);
    return soma;
}

constexpr int CalcularDigitoPelaSoma(TRegraDigito ARegra, int ASoma) noexcept {
    return CDigitoDaSoma[ARegra][static_cast<unsigned>(ASoma)];
}

int CalcularDigito(const TFormatosIE::TDigito& ADigito, int ASoma, std::u16string_view AIE) noexcept {
    switch (ADigito.Regra) {
        case rdGoias:
            return CalcularDigitoGoias(ASoma % 11, AIE);
        case rdBahia:
            return CalcularDigitoPelaSoma(BuscarRegraBahia(AIE[0]), ASoma);
        case rdAmapa:
            return CalcularDigitoAmapa(ASoma, AIE);
        case rdAlgarismos:
            return CalcularDigitoPelaSoma(rdDez, SomarAlgarismosDosProdutos(ADigito, AIE));
        default:
            return CalcularDigitoPelaSoma(ADigito.Regra, ASoma);
    }
}

/// ADigito1 and ADigito2 are what the digits must be.
inline TConferencia Comparar(const TFormatosIE::TFormato& AFormato, std::u16string_view AIE, int ADigito1, int ADigito2,
                             int ASoma1) noexcept {
    const bool certos =
        (ValorDe(AIE[AFormato.Digito1.Indice]) == ADigito1) & (ValorDe(AIE[AFormato.Digito2.Indice]) == ADigito2);
    return {certos ? mrNenhum : mrDigito, ASoma1 == 0 && SoTemZeros(AIE)};
}

// Out of line: the regular formats then need no registers saved.
[[gnu::noinline]] TConferencia ConferirIrregular(const TFormatosIE::TFormato& AFormato, std::u16string_view AIE,
                                                 int ASoma1, int ASoma2) noexcept {
    return Comparar(AFormato, AIE, CalcularDigito(AFormato.Digito1, ASoma1, AIE),
                    CalcularDigito(AFormato.Digito2, ASoma2, AIE), ASoma1);
}

using TBloco = std::array<std::int16_t, CBloco>;

inline int Somar(const TBloco& ADigitos, const TBloco& APesos) noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < CBloco; ++i) soma += ADigitos[i] * APesos[i];
    return soma;
}

bool TemInicioAceito(const TFormatosIE::TFormato& AFormato, std::u16string_view AIE) noexcept {
    std::uint64_t inicio = 0;
    for (std::size_t i = 0; i < 4; ++i) inicio |= static_cast<std::uint64_t>(AIE[i]) << (16 * i);
    return std::ranges::any_of(AFormato.Inicios, [&](const TInicioIE& i) { return (inicio & i.Mascara) == i.Valor; });
}

TConferencia ConferirFormato(const TFormatosIE::TFormato& AFormato, std::u16string_view AIE) noexcept {
    const char16_t* inicio = AIE.data();
    const char16_t* fim = inicio + AIE.size() - CBloco;
    TBloco a, b;
    std::uint16_t bits = 0;
    for (std::size_t i = 0; i < CBloco; ++i) {
        const auto do_inicio = static_cast<std::uint16_t>(inicio[i] - u'0');
        const auto do_fim = static_cast<std::uint16_t>(fim[i] - u'0');
        // Above 9 a value, or the value and 6 more, has bits beyond the lowest four.
        bits = static_cast<std::uint16_t>(bits | do_inicio | (do_inicio + 6) | do_fim | (do_fim + 6));
        a[i] = static_cast<std::int16_t>(do_inicio);
        b[i] = static_cast<std::int16_t>(do_fim);
    }
    if (bits > 0xF) return {mrCaractere, false};
    if (!TemInicioAceito(AFormato, AIE)) return {mrPrefixo, false};
    const int soma1 = Somar(a, AFormato.Digito1.PesosDoInicio) + Somar(b, AFormato.Digito1.PesosDoFim);
    const int soma2 = Somar(a, AFormato.Digito2.PesosDoInicio) + Somar(b, AFormato.Digito2.PesosDoFim);
    if (AFormato.Irregular) return ConferirIrregular(AFormato, AIE, soma1, soma2);
    return Comparar(AFormato, AIE, CalcularDigitoPelaSoma(AFormato.Digito1.Regra, soma1),
                    CalcularDigitoPelaSoma(AFormato.Digito2.Regra, soma2), soma1);
}

}  // namespace

bool SoTemZeros(std::u16string_view AIE) noexcept {
    return std::ranges::all_of(AIE, [](char16_t c) { return c == u'0'; });
}

TConferencia Conferir(const TFormatosIE& AFormatos, std::u16string_view AIE) noexcept {
    const std::size_t lugar = AIE.size() <= CMaiorTamanho ? AFormatos.PorTamanho[AIE.size()] : 0;
    if (lugar == 0) return {mrTamanho, false};
    return ConferirFormato(AFormatos.Formatos[lugar - 1], AIE);
}

}  // namespace OryUtils::RegrasIE
