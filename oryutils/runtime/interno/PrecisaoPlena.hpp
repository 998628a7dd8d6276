#pragma once

#include <cstdint>
#include <optional>
#include <type_traits>
#include <utility>

/// The processor computes an Extended with 64 bits only while the control word of the thread says so. Windows starts a
/// thread with 53 bits, which only this compiler's own runtime changes: a thread of CreateThread, or any thread of a
/// program that another compiler made, would get other digits. Some programs also ask to be stopped by a division by
/// zero or by a NaN.
namespace OryUtils {

/// 64 bits, the nearest number, nothing stops.
inline bool TemPrecisaoPlena() noexcept {
    constexpr unsigned COQueConta = 0x0F3F;
    constexpr unsigned CPlena = 0x033F;
    std::uint16_t controle = 0;
    __asm__ volatile("fnstcw %0" : "=m"(controle));
    return (controle & COQueConta) == CPlena;
}
/// The same for double: the nearest number, small ones kept, nothing stops.
inline bool TemDoublePadrao() noexcept {
    constexpr unsigned COQueConta = 0xFFC0;
    constexpr unsigned CPadrao = 0x1F80;
    std::uint32_t controle = 0;
    __asm__ volatile("stmxcsr %0" : "=m"(controle));
    return (controle & COQueConta) == CPadrao;
}

/// Calls AFuncao(ADado) with both as they should be, and puts back what was there.
void ExecutarComPrecisaoPlena(void (*AFuncao)(void*), void* ADado);

/// The result of AFuncao, computed with full precision. Call it where TemPrecisaoPlena says no, with the operation
/// itself: the call is opaque, so that the compiler moves no arithmetic out of it.
template <typename TFuncao>
auto ComPrecisaoPlena(TFuncao AFuncao) {
    using TResultado = std::invoke_result_t<TFuncao&>;
    const auto executar = [](auto& AChamada) {
        ExecutarComPrecisaoPlena([](void* ADado) { (*static_cast<decltype(&AChamada)>(ADado))(); }, &AChamada);
    };
    if constexpr (std::is_void_v<TResultado>) {
        executar(AFuncao);
    } else {
        std::optional<TResultado> resultado;
        auto chamada = [&] { resultado.emplace(AFuncao()); };
        executar(chamada);
        return std::move(*resultado);
    }
}

}  // namespace OryUtils
