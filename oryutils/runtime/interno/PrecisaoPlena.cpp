#include "oryutils/runtime/interno/PrecisaoPlena.hpp"

namespace OryUtils {
namespace {

/// What the processor holds of the two kinds of arithmetic.
struct TControle {
    std::uint16_t Extended = 0x037F;
    std::uint32_t Double = 0x1F80;

    static TControle Ler() noexcept {
        TControle controle;
        __asm__ volatile("fnstcw %0" : "=m"(controle.Extended));
        __asm__ volatile("stmxcsr %0" : "=m"(controle.Double));
        return controle;
    }
    void Aplicar() const noexcept {
        // What an operation left to be told (a division by zero that stopped nothing) would stop the program at the
        // next instruction where its word asks for that.
        __asm__ volatile("fnclex\n\tfldcw %0\n\tldmxcsr %1" : : "m"(Extended), "m"(Double) : "memory");
    }
};

struct TControleDeVolta {
    TControle Anterior = TControle::Ler();
    TControleDeVolta() = default;
    TControleDeVolta(const TControleDeVolta&) = delete;
    TControleDeVolta& operator=(const TControleDeVolta&) = delete;
    ~TControleDeVolta() { Anterior.Aplicar(); }
};

}  // namespace

void ExecutarComPrecisaoPlena(void (*AFuncao)(void*), void* ADado) {
    const TControleDeVolta volta;
    TControle{}.Aplicar();
    AFuncao(ADado);
}

}  // namespace OryUtils
