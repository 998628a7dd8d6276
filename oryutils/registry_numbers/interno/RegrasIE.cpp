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

int CalcularDigitoIrregular(const TFormatosIE::TDigito& ADigito, int ASoma, std::u16string_view AIE) noexcept {
    switch (ADigito.Regra) {
        case rdGoias:
            return CalcularDigitoGoias(ASoma % 11, AIE);
        case rdBahia:
            return CalcularDigitoPelaSoma(BuscarRegraBahia(AIE[0]), ASoma);
        case rdAmapa:
            return CalcularDigitoAmapa(ASoma, AIE);
        default:
            return CalcularDigitoPelaSoma(rdDez, SomarAlgarismosDosProdutos(ADigito, AIE));  // rdAlgarismos
    }
}

inline int CalcularDigito(const TFormatosIE::TDigito& ADigito, int ASoma, std::u16string_view AIE) noexcept {
    if (ADigito.Regra > rdDez) [[unlikely]]
        return CalcularDigitoIrregular(ADigito, ASoma, AIE);
    return CalcularDigitoPelaSoma(ADigito.Regra, ASoma);
}

inline int Somar(const std::array<std::int16_t, CBloco>& ADigitos,
                 const std::array<std::int16_t, CBloco>& APesos) noexcept {
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
    const auto& [digito1, digito2, inicios] = AFormato;
    std::array<std::int16_t, CBloco> a, b;
    std::uint16_t estranhos = 0;
    std::uint16_t algum = 0;
    for (std::size_t i = 0; i < CBloco; ++i) {
        const auto do_inicio = static_cast<std::uint16_t>(inicio[i] - u'0');
        const auto do_fim = static_cast<std::uint16_t>(fim[i] - u'0');
        estranhos = static_cast<std::uint16_t>(estranhos | (do_inicio > 9 ? 1 : 0) | (do_fim > 9 ? 1 : 0));
        algum = static_cast<std::uint16_t>(algum | do_inicio | do_fim);
        a[i] = static_cast<std::int16_t>(do_inicio);
        b[i] = static_cast<std::int16_t>(do_fim);
    }
    const int soma1 = Somar(a, digito1.PesosDoInicio) + Somar(b, digito1.PesosDoFim);
    const int soma2 = Somar(a, digito2.PesosDoInicio) + Somar(b, digito2.PesosDoFim);
    if (estranhos) return {mrCaractere, false};
    if (!TemInicioAceito(AFormato, AIE)) return {mrPrefixo, false};
    const bool certos = (ValorDe(AIE[digito1.Indice]) == CalcularDigito(digito1, soma1, AIE)) &
                        (ValorDe(AIE[digito2.Indice]) == CalcularDigito(digito2, soma2, AIE));
    return {certos ? mrNenhum : mrDigito, algum == 0};
}

}  // namespace

TConferencia Conferir(const TFormatosIE& AFormatos, std::u16string_view AIE) noexcept {
    const std::size_t lugar = AIE.size() <= CMaiorTamanho ? AFormatos.PorTamanho[AIE.size()] : 0;
    if (lugar == 0) return {mrTamanho, false};
    return ConferirFormato(AFormatos.Formatos[lugar - 1], AIE);
}

}  // namespace OryUtils::RegrasIE
