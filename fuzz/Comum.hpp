#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <utility>

/// What every target shares: bytes taken off the front of the input, and texts of any UTF-16 units.
namespace Fuzz {

class TEntrada {
public:
    TEntrada(const std::uint8_t* ABytes, std::size_t ATamanho) : FBytes(ABytes), FTamanho(ATamanho) {}

    bool Acabou() const { return FTamanho == 0; }
    std::uint8_t Byte() {
        if (FTamanho == 0) return 0;
        --FTamanho;
        return *FBytes++;
    }
    template <typename T>
    T Valor() {
        T valor{};
        const std::size_t quantos = FTamanho < sizeof valor ? FTamanho : sizeof valor;
        if (quantos > 0) std::memcpy(&valor, FBytes, quantos);
        FBytes += quantos;
        FTamanho -= quantos;
        return valor;
    }
    /// At most AMaior characters; most of them ASCII, as the languages are.
    std::u16string Texto(std::size_t AMaior) { return Caracteres(Byte() % (AMaior + 1)); }
    /// All that is left, in the same way, without a length before it: entries of a dictionary and files of a corpus
    /// stand for themselves.
    std::u16string Resto() { return Caracteres(std::string::npos); }
    std::string Bytes() {
        std::string bytes(reinterpret_cast<const char*>(FBytes), FTamanho);
        FBytes += std::exchange(FTamanho, 0);
        return bytes;
    }

private:
    std::u16string Caracteres(std::size_t AQuantos) {
        std::u16string texto;
        for (; AQuantos > 0 && !Acabou(); --AQuantos) {
            const std::uint8_t c = Byte();
            texto += c < 0xF0 ? char16_t{c} : Valor<char16_t>();
        }
        return texto;
    }

    const std::uint8_t* FBytes;
    std::size_t FTamanho;
};

/// What a target does with one input.
void Provar(TEntrada AEntrada);

/// A finding unless ACondicao.
inline void Exigir(bool ACondicao) {
    if (!ACondicao) std::abort();
}

}  // namespace Fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* ABytes, std::size_t ATamanho) {
    Fuzz::Provar({ABytes, ATamanho});
    return 0;
}
