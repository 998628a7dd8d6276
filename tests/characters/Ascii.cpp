#include "oryutils/characters/Ascii.hpp"

#include "oryutils/characters/Hexadecimal.hpp"

#include <gtest/gtest.h>

#include <cstdio>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CMinusculas = u"abcdefghijklmnopqrstuvwxyz";
constexpr std::u16string_view CMaiusculas = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::u16string_view CHexadecimais = u"0123456789abcdefABCDEF";

TEST(Ascii, CadaCaractere) {
    for (int codigo = 0; codigo <= 0xFFFF; ++codigo) {
        const auto c = static_cast<char16_t>(codigo);
        const std::size_t maiuscula = CMaiusculas.find(c);
        const std::size_t minuscula = CMinusculas.find(c);
        ASSERT_EQ(MinusculaAscii(c), maiuscula == CMaiusculas.npos ? c : CMinusculas[maiuscula]);
        ASSERT_EQ(MaiusculaAscii(c), minuscula == CMinusculas.npos ? c : CMaiusculas[minuscula]);
        const std::size_t digito = CHexadecimais.find(c);
        const int valor = static_cast<int>(digito < 16 ? digito : digito - 6);
        ASSERT_EQ(ValorHexadecimal(c), digito == CHexadecimais.npos ? -1 : valor);
    }
}

TEST(Ascii, NumeroEmHexadecimal) {
    for (const std::uint32_t valor : {0u, 1u, 9u, 10u, 15u, 16u, 255u, 256u, 0x1009u, 0x7FFFFFFFu, 0xFFFFFFFFu})
        for (const std::size_t minimo : {1u, 2u, 4u, 8u}) {
            char esperado[16];
            std::snprintf(esperado, sizeof esperado, "%0*x", static_cast<int>(minimo), valor);
            const std::string_view digitos = esperado;
            EXPECT_EQ(TextoHexadecimal(valor, minimo), std::u16string(digitos.begin(), digitos.end()));
        }
}

}  // namespace
}  // namespace OryUtils::Interno
