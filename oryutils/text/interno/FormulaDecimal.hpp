#pragma once

#include "oryutils/runtime/interno/QuinzeDigitos.hpp"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <utility>

namespace OryUtils::Interno {

inline constexpr int CMaximoDeDecimais = 18;
inline constexpr auto CPotenciasInteiras = [] {
    std::array<std::int64_t, CMaximoDeDecimais + 1> potencias{1};
    for (std::size_t i = 1; i < potencias.size(); ++i) potencias[i] = potencias[i - 1] * 10;
    return potencias;
}();
constexpr std::int64_t PotenciaInteira(int AExpoente) noexcept {
    return CPotenciasInteiras[static_cast<std::size_t>(AExpoente)];
}

/// The number of a piece of a formula as its text shows it: Digitos, of at most 15 digits, with Decimais of them behind
/// the separator. Whole arithmetic on these gives what the extended float gives once it is rounded to 15 digits.
struct TDecimal {
    std::int64_t Digitos = 0;
    int Decimais = 0;  // 0 to CMaximoDeDecimais

    static constexpr std::int64_t CPrimeiroLongo = 1'000'000'000'000'000;
    /// A number with this many decimals has no exponent, however small.
    static constexpr int CDecimaisSemExpoente = 4;

    constexpr TDecimal Oposto() const noexcept { return {-Digitos, Decimais}; }
    /// Whether the text is not digits alone: the number is below 0,0001.
    bool TemExpoente() const noexcept {
        return Decimais > CDecimaisSemExpoente && Digitos != 0 &&
               std::abs(Digitos) < PotenciaInteira(Decimais - CDecimaisSemExpoente);
    }
    bool Cabe() const noexcept {
        return std::abs(Digitos) < CPrimeiroLongo && Decimais <= CMaximoDeDecimais && !TemExpoente();
    }
    /// What reading the text gives: the nearest extended float.
    Extended ParaExtended() const noexcept {
        const auto digitos = static_cast<Extended>(Digitos);
        return Decimais == 0 ? digitos : digitos / CPotenciasDe10[static_cast<std::size_t>(Decimais)];
    }
};

/// AValor rounded to 15 digits. None when its text has an exponent or is no number.
std::optional<TDecimal> DecimalDe(Extended AValor) noexcept;
/// Takes the zeros off the end of the decimals.
void RetirarZeros(TDecimal& ADecimal) noexcept;

/// Room for the sign, 15 digits with the zeros in front of them, and the separator.
inline constexpr std::size_t CTamanhoMaximoDecimal = 24;
/// Writes the text at ADestino and answers its end.
char16_t* EscreverDecimal(TDecimal AValor, char16_t* ADestino, char16_t ASeparador) noexcept;

/// AValor, of at most 18 digits, rounded to 15. False when its text has an exponent, or when it stands in the middle:
/// the extended float, a little off, knows then.
bool ArredondarDecimal(TDecimal AValor, TDecimal& AResultado) noexcept;

inline bool Aceitar(TDecimal AValor, TDecimal& AResultado) noexcept {
    if (!AValor.Cabe()) return ArredondarDecimal(AValor, AResultado);
    AResultado = AValor;
    return true;
}

/// False when the product has more than 18 digits.
inline bool MultiplicarInteiros(std::int64_t AUm, std::int64_t AOutro, std::int64_t& AProduto) noexcept {
    constexpr std::int64_t CLimite = PotenciaInteira(18);
    return !__builtin_mul_overflow(AUm, AOutro, &AProduto) && AProduto > -CLimite && AProduto < CLimite;
}

/// The sum as its text shows it. False when only the extended float knows it.
inline bool SomarDecimais(TDecimal AUm, TDecimal AOutro, TDecimal& AResultado) noexcept {
    if (AUm.Decimais != AOutro.Decimais) {
        if (AUm.Decimais > AOutro.Decimais) std::swap(AUm, AOutro);
        if (!MultiplicarInteiros(AUm.Digitos, PotenciaInteira(AOutro.Decimais - AUm.Decimais), AUm.Digitos))
            return false;
        AUm.Decimais = AOutro.Decimais;
    }
    const TDecimal soma{AUm.Digitos + AOutro.Digitos, AUm.Decimais};
    // The float keeps 64 bits of each: when nearly all of them cancel out, what it leaves differs in the 15th digit.
    constexpr std::int64_t CMaiorPerda = 1024;
    if (soma.Decimais > 0 && soma.Digitos != 0 && std::abs(AUm.Digitos) / CMaiorPerda > std::abs(soma.Digitos))
        return false;
    return Aceitar(soma, AResultado);
}

/// The product, in the same way.
inline bool MultiplicarDecimais(TDecimal AUm, TDecimal AOutro, TDecimal& AResultado) noexcept {
    TDecimal produto{0, AUm.Decimais + AOutro.Decimais};
    return MultiplicarInteiros(AUm.Digitos, AOutro.Digitos, produto.Digitos) && Aceitar(produto, AResultado);
}

}  // namespace OryUtils::Interno
