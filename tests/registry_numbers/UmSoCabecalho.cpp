// A program that includes this header alone has the names that its operations take and the exceptions that they raise.
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"

#include <gtest/gtest.h>

namespace {

using namespace OryUtils;

TEST(UmSoCabecalho, DasValidacoes) {
    const TTipoInscricao tipo = tiCNPJ;
    EXPECT_TRUE(ValidouCnpjCpf(tipo, u"11.222.333/0001-81"));
    EXPECT_THROW(ValidouCEI(u"abcdefghijkl"), Exception);
}

}  // namespace
