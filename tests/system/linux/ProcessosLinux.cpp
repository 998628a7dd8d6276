#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/Ambiente.hpp"
#include "system/Auxiliar.hpp"

#include <gtest/gtest.h>

namespace OryUtils {
namespace {

using Testes::TPastaTemporaria;
using ::Testes::TVariavel;

TEST(ProcessosLinux, OProgramaEhProcuradoNoPathESemShell) {
    const TPastaTemporaria pasta;
    std::filesystem::create_symlink(Testes::ProgramaAuxiliar(), pasta / "arp");
    const TVariavel caminho("PATH", (pasta / "").string());
    EXPECT_EQ(TOryUtilsSistema::ExecutarComandoComRetorno(u"  arp argumentos $HOME *;ls"), u"[$HOME]\r\n[*;ls]");
}

}  // namespace
}  // namespace OryUtils
