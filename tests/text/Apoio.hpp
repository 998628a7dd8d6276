#pragma once

#include "oryutils/characters/Utf.hpp"

#include <gtest/gtest.h>

#include <random>
#include <span>
#include <string>
#include <vector>

namespace Testes {

using TLista = std::vector<std::u16string>;

/// Random short texts over a small alphabet, which coincide and overlap often. The seed is printed with a failure.
class TSorteio {
public:
    TSorteio() : FGerador(FSemente) {}
    std::string Semente() const { return "seed " + std::to_string(FSemente); }
    int Numero(int AMenor, int AMaior) { return std::uniform_int_distribution(AMenor, AMaior)(FGerador); }
    std::u16string Texto(std::u16string_view AAlfabeto, int AMenor, int AMaior) {
        std::u16string texto;
        for (int n = Numero(AMenor, AMaior); n > 0; --n)
            texto += AAlfabeto[static_cast<std::size_t>(Numero(0, static_cast<int>(AAlfabeto.size()) - 1))];
        return texto;
    }

private:
    unsigned FSemente = std::random_device{}();
    std::mt19937 FGerador;
};

/// Any code unit: lone surrogates, controls and pairs.
inline constexpr char16_t CUnidadesHostis[] = {0,  1,    8,    9,    13,    10,     32,     34,     39,     60,    62,
                                               47, 92,   59,   46,   44,    45,     95,     61,     38,     97,    65,
                                               48, 0xE9, 0xC9, 0xFF, 0x178, 0xD83D, 0xDE00, 0xD800, 0xFFFF, 0x1000};
inline constexpr std::u16string_view CHostis(CUnidadesHostis, std::size(CUnidadesHostis));

}  // namespace Testes
