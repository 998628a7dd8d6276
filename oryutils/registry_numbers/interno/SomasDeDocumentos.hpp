#pragma once

#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"

/// The sums of numbers that are too long for the table language.
namespace OryUtils::Interno {

constexpr char ParaDigito(int ADigito) noexcept { return static_cast<char>('0' + ADigito); }

/// 11 less the remainder of the sum by 11; 10 and 11 become 0.
constexpr char DigitoModulo11(int ASoma) noexcept { return ParaDigito(CalcularDigito(CModulo11, ASoma)); }

/// The weights 2 to 9 over and over, from the right. A letter counts its code less that of "0". ASem is the place of a
/// character that is left out, 1 being leftmost.
constexpr int SomarDe2A9(std::string_view ANumero, std::size_t ASem = 0) noexcept {
    int soma = 0;
    int peso = 2;
    for (std::size_t lugar = ANumero.size(); lugar > 0; --lugar) {
        if (lugar == ASem) continue;
        soma += peso * ValorDe(ANumero[lugar - 1]);
        peso = peso == 9 ? 2 : peso + 1;
    }
    return soma;
}

/// The digit that belongs behind: weights 2, 1, 2, 1 from the right, the two digits of a product added; what the sum
/// lacks to the next multiple of ten.
constexpr char DigitoModulo10(std::string_view ANumero, std::size_t ASem = 0) noexcept {
    int soma = 0;
    int peso = 2;
    for (std::size_t lugar = ANumero.size(); lugar > 0; --lugar) {
        if (lugar == ASem) continue;
        const int produto = peso * ValorDe(ANumero[lugar - 1]);
        soma += produto / 10 + produto % 10;
        peso = 3 - peso;
    }
    return ParaDigito((10 - soma % 10) % 10);
}

/// The number of these digits modulo 97; a letter counts as two digits, "A" as 10.
constexpr int RestoPor97(std::string_view ANumero, int AInicio = 0) noexcept {
    int resto = AInicio;
    for (const char c : ANumero) resto = c <= '9' ? (resto * 10 + (c - '0')) % 97 : (resto * 100 + (c - 'A' + 10)) % 97;
    return resto;
}

constexpr bool SaoDigitos(std::string_view ATexto) noexcept {
    return ATexto.find_first_not_of("0123456789") == ATexto.npos;
}

/// The integer of a few digits.
constexpr int ParaInteiro(std::string_view ADigitos) noexcept {
    int inteiro = 0;
    for (const char c : ADigitos) inteiro = inteiro * 10 + (c - '0');
    return inteiro;
}

}  // namespace OryUtils::Interno
