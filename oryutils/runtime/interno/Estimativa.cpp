#include "oryutils/runtime/interno/Estimativa.hpp"

#include "oryutils/runtime/interno/InteiroLongo.hpp"

#include <array>
#include <bit>
#include <cstddef>

namespace OryUtils {
namespace {

/// 10 to the power P is 10 to a multiple of this times one of the powers below it. A multiple of 13, as the long
/// integers take powers of 5 in steps of 13.
constexpr int CPasso = 130;
constexpr int CPassos = CMaiorPotencia / CPasso;
static_assert(CPassos * CPasso == CMaiorPotencia);
/// Enough for the divisor, 5 to CMaiorPotencia, to leave more than 128 bits of quotient.
constexpr int CBitsDoDividendo = 12'384;

/// The highest 128 bits of ANumero times 2 to AExpoente; ASobrou tells that the number is a little larger.
constexpr TEstimativa EstimarLongo(const TInteiroLongo& ANumero, int AExpoente, bool ASobrou) {
    const int bits = ANumero.ContarBits();
    const TInteiro128 mantissa =
        TInteiro128{ANumero.Buscar64Bits(bits - 64)} << 64 | TInteiro128{ANumero.Buscar64Bits(bits - 128)};
    return {mantissa, AExpoente + bits - 128, ASobrou || ANumero.TemBitAbaixoDe(bits - 128)};
}

// Each is 10 to its index.
constexpr auto CPotencias = [] {
    std::array<TEstimativa, CPasso> potencias{};
    TInteiroLongo numero(1);
    for (int i = 0; i < CPasso; ++i) {
        potencias[static_cast<std::size_t>(i)] = EstimarLongo(numero, i, false);
        numero.MultiplicarPorPotenciaDe5(1);
    }
    return potencias;
}();

// Each is 10 to (its index - CPassos) times CPasso.
constexpr auto CPotenciasDoPasso = [] {
    std::array<TEstimativa, 2 * CPassos + 1> potencias{};
    TInteiroLongo produto(1);
    TInteiroLongo quociente(1);
    quociente.DeslocarEsquerda(CBitsDoDividendo);
    for (int i = 0; i <= CPassos; ++i) {
        const auto passos = static_cast<std::size_t>(i);
        potencias[CPassos - passos] = EstimarLongo(quociente, -CBitsDoDividendo - i * CPasso, i > 0);
        potencias[CPassos + passos] = EstimarLongo(produto, i * CPasso, false);
        produto.MultiplicarPorPotenciaDe5(CPasso);
        quociente.DividirPorPotenciaDe5(CPasso);
    }
    return potencias;
}();

TEstimativa Multiplicar(const TEstimativa& AUm, const TEstimativa& AOutro) noexcept {
    const auto parte = [](const TEstimativa& A, int ADeslocamento) {
        return TInteiro128{static_cast<std::uint64_t>(A.Mantissa >> ADeslocamento)};
    };
    const auto baixoDe = [](TInteiro128 A) { return TInteiro128{static_cast<std::uint64_t>(A)}; };
    const TInteiro128 baixo = parte(AUm, 0) * parte(AOutro, 0);
    const TInteiro128 meio1 = parte(AUm, 64) * parte(AOutro, 0);
    const TInteiro128 meio2 = parte(AUm, 0) * parte(AOutro, 64);
    const TInteiro128 meio = (baixo >> 64) + baixoDe(meio1) + baixoDe(meio2);
    TInteiro128 mantissa = parte(AUm, 64) * parte(AOutro, 64) + (meio1 >> 64) + (meio2 >> 64) + (meio >> 64);
    TInteiro128 resto = meio << 64 | baixoDe(baixo);
    int expoente = AUm.Expoente + AOutro.Expoente + 128;

    // Each error counts less than one unit of the product for each of its own; the two of them together, and the part
    // that is cut off, less than one more.
    unsigned erro = AUm.Erro + AOutro.Erro + (AUm.Erro != 0 && AOutro.Erro != 0);
    if (mantissa >> 127 == 0) {
        mantissa = mantissa << 1 | resto >> 127;
        resto <<= 1;
        --expoente;
        erro *= 2;
    }
    return {mantissa, expoente, erro + (resto != 0)};
}

}  // namespace

TEstimativa Estimar(TInteiro128 AValor, unsigned AErro, int AExpoente) noexcept {
    const auto alto = static_cast<std::uint64_t>(AValor >> 64);
    const int zeros = alto ? std::countl_zero(alto) : 64 + std::countl_zero(static_cast<std::uint64_t>(AValor));
    return {AValor << zeros, AExpoente - zeros, AErro == 0 ? 0 : AErro << zeros};
}

TEstimativa MultiplicarPorPotenciaDe10(const TEstimativa& AValor, int APotencia) noexcept {
    const int passos = (APotencia + CMaiorPotencia) / CPasso;  // never below zero, where the quotient turns around
    const int resto = APotencia + CMaiorPotencia - passos * CPasso;
    const TEstimativa& potencia = CPotencias[static_cast<std::size_t>(resto)];
    if (passos == CPassos) return Multiplicar(AValor, potencia);
    return Multiplicar(AValor, Multiplicar(CPotenciasDoPasso[static_cast<std::size_t>(passos)], potencia));
}

TLadoDaMetade BuscarLadoDaMetade(const TEstimativa& AValor, int ABits) noexcept {
    const TInteiro128 metade = TInteiro128{1} << (ABits - 1);
    const TInteiro128 resto = AValor.Mantissa & (metade | (metade - 1));
    // What the error carries to the next integer is rounded to that one just the same.
    if (resto > metade) return lmAcima;
    if (resto == metade) return AValor.Erro == 0 ? lmMetade : lmIncerto;
    return metade - resto >= AValor.Erro ? lmAbaixo : lmIncerto;
}

}  // namespace OryUtils
