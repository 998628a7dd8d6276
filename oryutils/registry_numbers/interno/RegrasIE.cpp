#include "oryutils/registry_numbers/interno/RegrasIE.hpp"

#include <algorithm>

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

int CalcularDigito(const TDigitoIE& ADigito, const TDigitos& ADigitos) noexcept {
    const int soma = Somar(ADigitos, ADigito.Pesos);
    switch (ADigito.Regra) {
        case rdPadrao:
            return CalcularDigitoPadrao(soma % 11);
        case rdVezesDez:
            return soma * 10 % 11 % 10;
        case rdOnze:
            return (11 - soma % 11) % 10;
        case rdGoias:
            return CalcularDigitoGoias(soma % 11, ADigitos);
        case rdNove:
            return soma % 9;
        case rdUltimo:
            return soma % 11 % 10;
        case rdBahia:
            return BahiaUsaModulo11(ADigitos[0]) ? CalcularDigitoPadrao(soma % 11) : (10 - soma % 10) % 10;
        case rdAmapa:
            return CalcularDigitoAmapa(soma, ADigitos);
        case rdAlgarismos:
            return (10 - SomarAlgarismosDosProdutos(ADigitos, ADigito.Pesos) % 10) % 10;
        case rdNenhum:
            break;
    }
    return ADigitos[ADigito.Lugar - 1];
}

bool ComecaComo(std::u16string_view AIE, std::string_view AInicio) noexcept {
    for (std::size_t i = 0; i < AInicio.size(); ++i)
        if (AInicio[i] != '?' && AIE[i] != static_cast<char16_t>(AInicio[i])) return false;
    return true;
}

bool TemInicioAceito(const TFormatoIE& AFormato, std::u16string_view AIE) noexcept {
    if (AFormato.Inicios[0].empty()) return true;
    for (const std::string_view inicio : AFormato.Inicios) {
        if (inicio.empty()) return false;
        if (ComecaComo(AIE, inicio)) return true;
    }
    return false;
}

TMotivoRecusa ConferirFormato(const TFormatoIE& AFormato, std::u16string_view AIE) noexcept {
    TDigitos digitos{};
    for (std::size_t i = 0; i < AIE.size(); ++i) {
        const auto digito = static_cast<unsigned>(AIE[i] - u'0');
        if (digito > 9) return mrCaractere;
        digitos[i] = static_cast<std::int16_t>(digito);
    }
    if (!TemInicioAceito(AFormato, AIE)) return mrPrefixo;
    const auto certo = [&](const TDigitoIE& ADigito) {
        return ADigito.Regra == rdNenhum || digitos[ADigito.Lugar - 1] == CalcularDigito(ADigito, digitos);
    };
    return certo(AFormato.Digito1) && certo(AFormato.Digito2) ? mrNenhum : mrDigito;
}

}  // namespace

TMotivoRecusa Conferir(std::span<const TFormatoIE> AFormatos, std::u16string_view AIE) noexcept {
    for (const TFormatoIE& formato : AFormatos)
        if (formato.Tamanho == AIE.size()) return ConferirFormato(formato, AIE);
    return mrTamanho;
}

}  // namespace OryUtils::RegrasIE
