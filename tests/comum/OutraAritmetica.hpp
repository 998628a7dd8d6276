#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace Testes {

/// The processor of this thread as other programs and threads set it, until the end of the scope.
class TOutraAritmetica {
public:
    explicit TOutraAritmetica(std::uint16_t AControle, std::uint32_t ADouble = 0x1F80) {
        __asm__ volatile("fnstcw %0\n\tstmxcsr %1" : "=m"(FControle), "=m"(FDouble));
        __asm__ volatile("fldcw %0\n\tldmxcsr %1" : : "m"(AControle), "m"(ADouble) : "memory");
    }
    TOutraAritmetica(const TOutraAritmetica&) = delete;
    TOutraAritmetica& operator=(const TOutraAritmetica&) = delete;
    ~TOutraAritmetica() {
        __asm__ volatile("fnclex\n\tfldcw %0\n\tldmxcsr %1" : : "m"(FControle), "m"(FDouble) : "memory");
    }
    static std::uint16_t BuscarControle() {
        std::uint16_t controle = 0;
        __asm__ volatile("fnstcw %0" : "=m"(controle));
        return controle;
    }

private:
    std::uint16_t FControle = 0;
    std::uint32_t FDouble = 0;
};

/// A thread of CreateThread, 24 bits, stopped by NaN, division by zero and overflow, towards zero.
inline constexpr std::uint16_t COutrosControles[] = {0x027F, 0x007F, 0x0372, 0x0F7F};

/// AFuncao in one of these, by AIndice, and in the usual one in turns.
auto EmOutraAritmetica(std::size_t AIndice, const auto& AFuncao) {
    if (AIndice % 2 == 0) return AFuncao();
    const TOutraAritmetica outra(COutrosControles[AIndice / 2 % std::size(COutrosControles)]);
    return AFuncao();
}

}  // namespace Testes
