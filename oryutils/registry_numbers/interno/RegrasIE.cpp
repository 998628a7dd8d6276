#include "oryutils/registry_numbers/interno/RegrasIE.hpp"

#include <algorithm>
#include <cstring>

namespace OryUtils::RegrasIE {
namespace {

using TDigitos = std::array<std::int16_t, CLargura>;

int Somar(const TDigitos& ADigitos, const TDigitos& APesos) noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < CLargura; ++i) soma += ADigitos[i] * APesos[i];
    return soma;
}

int SomarAlgarismosDosProdutos(const TDigitos& ADigitos, const TDigitos& APesos) noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < CLargura; ++i) {
        const int produto = ADigitos[i] * APesos[i];
        soma += produto / 10 + produto % 10;
    }
    return soma;
}

int BuscarNumeroDe8Digitos(const TDigitos& ADigitos) noexcept {
    int numero = 0;
    for (std::size_t i = 0; i < 8; ++i) numero = numero * 10 + ADigitos[i];
    return numero;
}

int CalcularDigitoGoias(int AResto, const TDigitos& ADigitos) noexcept {
    if (AResto != 1) return CalcularDigitoPadrao(AResto);
    const int numero = BuscarNumeroDe8Digitos(ADigitos);
    return numero >= 10103105 && numero <= 10119997 ? 1 : 0;
}

int CalcularDigitoAmapa(int ASoma, const TDigitos& ADigitos) noexcept {
    struct TFaixa {
        int Primeiro, Parcela, DigitoDoOnze;
    };
    // Numbers from Primeiro up to the next row; below the first company number eleven becomes what no digit can be.
    static constexpr TFaixa CFaixas[] = {{3019023, 0, 0}, {3017001, 9, 1}, {3000001, 5, 0}, {0, 999, 999}};
    const int numero = BuscarNumeroDe8Digitos(ADigitos);
    const TFaixa& faixa = *std::ranges::find_if(CFaixas, [&](const TFaixa& f) { return numero >= f.Primeiro; });
    const int digito = 11 - (faixa.Parcela + ASoma) % 11;
    if (digito == 10) return 0;
    return digito == 11 ? faixa.DigitoDoOnze : digito;
}

bool BahiaUsaModulo11(int APrimeiroDigito) noexcept {
    return APrimeiroDigito == 6 || APrimeiroDigito == 7 || APrimeiroDigito == 9;
}

/// The check digit of each remainder of 11, for the rules that need no more.
constexpr std::array<std::array<std::uint8_t, 11>, rdUltimo + 1> CDigitoDoResto = [] {
    std::array<std::array<std::uint8_t, 11>, rdUltimo + 1> digitos{};
    for (int resto = 0; resto < 11; ++resto) {
        const auto coluna = static_cast<std::size_t>(resto);
        digitos[rdPadrao][coluna] = static_cast<std::uint8_t>(CalcularDigitoPadrao(resto));
        digitos[rdVezesDez][coluna] = static_cast<std::uint8_t>(resto * 10 % 11 % 10);
        digitos[rdOnze][coluna] = static_cast<std::uint8_t>((11 - resto) % 10);
        digitos[rdUltimo][coluna] = static_cast<std::uint8_t>(resto % 10);
    }
    return digitos;
}();

int CalcularDigito(const TDigitoIE& ADigito, const TDigitos& ADigitos) noexcept {
    const int soma = Somar(ADigitos, ADigito.Pesos);
    if (ADigito.Regra <= rdUltimo) return CDigitoDoResto[ADigito.Regra][static_cast<unsigned>(soma) % 11];
    switch (ADigito.Regra) {
        case rdGoias:
            return CalcularDigitoGoias(soma % 11, ADigitos);
        case rdNove:
            return soma % 9;
        case rdBahia:
            return BahiaUsaModulo11(ADigitos[0]) ? CalcularDigitoPadrao(soma % 11) : (10 - soma % 10) % 10;
        case rdAmapa:
            return CalcularDigitoAmapa(soma, ADigitos);
        default:
            return (10 - SomarAlgarismosDosProdutos(ADigitos, ADigito.Pesos) % 10) % 10;  // rdAlgarismos
    }
}

bool TemInicioAceito(const TFormatoIE& AFormato, const TDigitos& ADigitos) noexcept {
    std::uint64_t inicio = 0;
    for (std::size_t i = 0; i < 4; ++i) inicio |= static_cast<std::uint64_t>(ADigitos[i]) << (16 * i);
    bool aceito = false;
    for (const TInicioIE& alternativa : AFormato.Inicios) aceito |= (inicio & alternativa.Mascara) == alternativa.Valor;
    return aceito;
}

TMotivoRecusa ConferirFormato(const TFormatoIE& AFormato, std::u16string_view AIE) noexcept {
    constexpr std::size_t CBloco = 8;  // no format is shorter
    std::array<char16_t, CLargura> texto;
    texto.fill(u'0');
    // Two blocks of fixed size, the second one over the end of the first.
    std::memcpy(texto.data(), AIE.data(), CBloco * sizeof(char16_t));
    std::memcpy(texto.data() + AIE.size() - CBloco, AIE.data() + AIE.size() - CBloco, CBloco * sizeof(char16_t));
    TDigitos digitos;
    std::uint16_t estranhos = 0;
    for (std::size_t i = 0; i < CLargura; ++i) {
        const auto digito = static_cast<std::uint16_t>(texto[i] - u'0');
        estranhos = static_cast<std::uint16_t>(estranhos | (digito > 9 ? 1 : 0));
        digitos[i] = static_cast<std::int16_t>(digito);
    }
    if (estranhos) return mrCaractere;
    if (!TemInicioAceito(AFormato, digitos)) return mrPrefixo;
    const bool certos = (digitos[AFormato.Digito1.Lugar - 1] == CalcularDigito(AFormato.Digito1, digitos)) &
                        (digitos[AFormato.Digito2.Lugar - 1] == CalcularDigito(AFormato.Digito2, digitos));
    return certos ? mrNenhum : mrDigito;
}

}  // namespace

TMotivoRecusa Conferir(std::span<const TFormatoIE> AFormatos, std::u16string_view AIE) noexcept {
    for (const TFormatoIE& formato : AFormatos)
        if (formato.Tamanho == AIE.size()) return ConferirFormato(formato, AIE);
    return mrTamanho;
}

}  // namespace OryUtils::RegrasIE
