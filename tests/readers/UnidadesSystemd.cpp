#include "oryutils/readers/UnidadesSystemd.hpp"

#include <gtest/gtest.h>

namespace OryUtils::Interno {
namespace {

TEST(UnidadesSystemd, NomesETextosNaoViramOpcoesNemLinhas) {
    for (const char* nome : {"--now", "../x", "a/b", "a b", "", ".x", "a;b", "a\nb", "ação"})
        EXPECT_FALSE(EhNomeDeUnidade(nome)) << nome;
    EXPECT_TRUE(EhNomeDeUnidade("ory-eventos@1.x"));
    EXPECT_EQ(MontarUnidade("a\nExecStartPre=/bin/x", "/bin/true", false), "");
    EXPECT_EQ(MontarUnidade("a", "/bin/true\n[Service]", true), "");
    EXPECT_NE(MontarUnidade("a\\", "/x", true).find("Description=a\\ \n"), std::string::npos);
    EXPECT_NE(MontarUnidade("a", "/x \"q\\\"%h\"", false).find("ExecStart=\"/x\" \"q\\\"%%h\"\n"), std::string::npos);
    EXPECT_NE(MontarUnidade("a", "/b c/x", true).find("ExecStart=\"/b c/x\"\n"), std::string::npos);
}

}  // namespace
}  // namespace OryUtils::Interno
