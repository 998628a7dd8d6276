#include "oryutils/platform/windows/Contas.hpp"
#include "oryutils/platform/windows/FotoDeProcessos.hpp"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>

namespace OryUtils::Interno {
namespace {

TEST(ListaDeProcessos, AFotoEhPedidaDeNovoEnquantoUmModuloEhCarregado) {
    int vezes = 0;
    const auto recusar = [&](int AQuantas, DWORD AErro) {
        vezes = 0;
        return Fotografar([&, AQuantas, AErro] {
            ::SetLastError(AErro);
            return ++vezes > AQuantas ? nullptr : INVALID_HANDLE_VALUE;
        });
    };
    EXPECT_NE(recusar(3, ERROR_BAD_LENGTH), INVALID_HANDLE_VALUE);
    EXPECT_EQ(vezes, 4);
    EXPECT_EQ(recusar(1, ERROR_ACCESS_DENIED), INVALID_HANDLE_VALUE) << "another refusal stands";
    EXPECT_EQ(recusar(1'000'000, ERROR_BAD_LENGTH), INVALID_HANDLE_VALUE) << "not for ever";
}

TEST(ListaDeProcessos, CadaContaEhPerguntadaUmaVez) {
    std::array<BYTE, SECURITY_MAX_SID_SIZE> todos, sistema;
    for (const auto& [tipo, sid] : {std::pair{WinWorldSid, &todos}, {WinLocalSystemSid, &sistema}}) {
        auto tamanho = static_cast<DWORD>(sid->size());
        ASSERT_TRUE(::CreateWellKnownSid(tipo, nullptr, sid->data(), &tamanho));
    }
    std::u16string perguntadas;
    TContas contas([&](PSID AConta) {
        perguntadas += ::EqualSid(AConta, todos.data()) ? u'T' : u'S';
        return TDonoDeProcesso{perguntadas, u""};
    });
    for (int vez = 0; vez < 3; ++vez) {
        EXPECT_EQ(contas.Buscar(todos.data()).Usuario, u"T");
        EXPECT_EQ(contas.Buscar(sistema.data()).Usuario, u"TS");
    }
}

}  // namespace
}  // namespace OryUtils::Interno
