#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace OryUtils {

/// A natural number of up to 65,536 bits without allocation: room for every step between decimal texts and extended
/// floats. The caller keeps within that room.
class TInteiroLongo {
public:
    constexpr explicit TInteiroLongo(std::uint64_t AValor = 0) noexcept {
        Acrescentar(static_cast<std::uint32_t>(AValor));
        Acrescentar(static_cast<std::uint32_t>(AValor >> 32));
        Aparar();
    }

    constexpr bool EhZero() const noexcept { return FTamanho == 0; }
    constexpr int ContarBits() const noexcept {
        return FTamanho == 0 ? 0 : static_cast<int>(FTamanho) * 32 - std::countl_zero(FPartes[FTamanho - 1]);
    }

    constexpr void MultiplicarSomar(std::uint32_t AFator, std::uint32_t AParcela) noexcept {
        std::uint64_t sobra = AParcela;
        for (std::size_t i = 0; i < FTamanho; ++i) {
            sobra += std::uint64_t{FPartes[i]} * AFator;
            FPartes[i] = static_cast<std::uint32_t>(sobra);
            sobra >>= 32;
        }
        if (sobra) Acrescentar(static_cast<std::uint32_t>(sobra));
    }

    /// The quotient stays; the remainder is the result.
    constexpr std::uint32_t Dividir(std::uint32_t ADivisor) noexcept {
        std::uint64_t resto = 0;
        for (std::size_t i = FTamanho; i-- > 0;) {
            resto = resto << 32 | FPartes[i];
            FPartes[i] = static_cast<std::uint32_t>(resto / ADivisor);
            resto %= ADivisor;
        }
        Aparar();
        return static_cast<std::uint32_t>(resto);
    }

    constexpr void MultiplicarPorPotenciaDe5(int AExpoente) noexcept {
        for (; AExpoente >= CExpoente5; AExpoente -= CExpoente5) MultiplicarSomar(CPotencia5, 0);
        for (; AExpoente > 0; --AExpoente) MultiplicarSomar(5, 0);
    }
    /// True when the division left something over.
    constexpr bool DividirPorPotenciaDe5(int AExpoente) noexcept {
        bool sobrou = false;
        for (; AExpoente >= CExpoente5; AExpoente -= CExpoente5) sobrou |= Dividir(CPotencia5) != 0;
        for (; AExpoente > 0; --AExpoente) sobrou |= Dividir(5) != 0;
        return sobrou;
    }

    constexpr void DeslocarEsquerda(int ABits) noexcept {
        if (FTamanho == 0 || ABits <= 0) return;
        const std::size_t partes = static_cast<std::size_t>(ABits) / 32;
        for (int i = ABits % 32; i > 0; i -= 16) MultiplicarSomar(1U << (i < 16 ? i : 16), 0);
        if (partes == 0) return;
        for (std::size_t i = FTamanho; i-- > 0;) FPartes[i + partes] = FPartes[i];
        for (std::size_t i = 0; i < partes; ++i) FPartes[i] = 0;
        FTamanho += partes;
    }

    constexpr bool Bit(int APosicao) const noexcept {
        const auto parte = static_cast<std::size_t>(APosicao / 32);
        return APosicao >= 0 && parte < FTamanho && (FPartes[parte] >> (APosicao % 32) & 1U);
    }
    /// True when one of the lowest AQuantidade bits is set.
    constexpr bool TemBitAbaixoDe(int AQuantidade) const noexcept {
        for (int i = 0; i < AQuantidade; ++i)
            if (Bit(i)) return true;
        return false;
    }
    /// The 64 bits from APosicao up.
    constexpr std::uint64_t Buscar64Bits(int APosicao) const noexcept {
        std::uint64_t valor = 0;
        for (int i = 63; i >= 0; --i) valor = valor << 1 | static_cast<std::uint64_t>(Bit(APosicao + i));
        return valor;
    }

private:
    static constexpr std::size_t CCapacidade = 2048;
    static constexpr int CExpoente5 = 13;
    static constexpr std::uint32_t CPotencia5 = 1220703125;  // 5 to the 13th, the largest that fits

    constexpr void Acrescentar(std::uint32_t AParte) noexcept { FPartes[FTamanho++] = AParte; }
    constexpr void Aparar() noexcept {
        while (FTamanho > 0 && FPartes[FTamanho - 1] == 0) --FTamanho;
    }

    std::array<std::uint32_t, CCapacidade> FPartes;  // lowest part first; only the first FTamanho hold anything
    std::size_t FTamanho = 0;
};

}  // namespace OryUtils
