#include "oryutils/platform/Fluxo.hpp"

#include <gtest/gtest.h>

#include <array>

namespace OryUtils::Interno {
namespace {

// A program that looks whether there is input before it reads must see the end of an empty one.
TEST(Fluxo, ODispositivoVazioNaoFazEsperar) {
    TFluxo fluxo;
    const TErroFluxo aberto = fluxo.AbrirParaLer("NUL");
    ASSERT_TRUE(aberto == efNenhum || fluxo.AbrirParaLer("/dev/null") == efNenhum);
    EXPECT_FALSE(fluxo.LerEsperaria());
    std::array<char, 1> byte{};
    TErroFluxo erro = efOutro;
    EXPECT_EQ(fluxo.Ler(byte, erro), 0U);
    EXPECT_EQ(erro, efNenhum);
}

}  // namespace
}  // namespace OryUtils::Interno
