#include "oryutils/platform/linux/Elevacao.hpp"

#include "files/ApoioArquivos.hpp"
#include "system/Ambiente.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace OryUtils {
namespace {

using ::TPastaTemporaria;
using ::Testes::TVariavel;

TEST(Elevacao, QuemEleva) {
    const TPastaTemporaria pasta(u"oryelevacao");
    const TVariavel caminho("PATH", "/nao/existe::" + (pasta / "").string());
    using Interno::BuscarElevador;
    EXPECT_TRUE(BuscarElevador(false).empty());
    std::ofstream(pasta / "pkexec") << "nao executavel";
    std::filesystem::create_symlink("/bin/true", pasta / "sudo");
    EXPECT_EQ(BuscarElevador(true), (std::vector<std::string>{"sudo", "-A", "--"}));
    std::filesystem::permissions(pasta / "pkexec", std::filesystem::perms::owner_all);
    EXPECT_EQ(BuscarElevador(false), std::vector<std::string>{"pkexec"});
    EXPECT_EQ(BuscarElevador(true), (std::vector<std::string>{"pkexec", "--keep-cwd"}));
}

}  // namespace
}  // namespace OryUtils
