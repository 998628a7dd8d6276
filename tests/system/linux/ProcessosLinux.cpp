#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/linux/Elevacao.hpp"
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

TEST(ProcessosLinux, QuemEleva) {
    const TPastaTemporaria pasta;
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

TEST(ProcessosLinux, CodificacaoDaLocalidade) {
    struct TCaso {
        const char* Localidade;
        std::string_view Bytes;
        std::u16string_view Esperado;
        const char* Porque;
    };
    const TCaso casos[] = {
        {"C.UTF-8", "a\xC3\xA7\xFF", u"aç\xFFFD", "UTF-8, and a byte that is not"},
        {"C", "a\xC3\xA7", u"aç", "the plain locale counts as UTF-8"},
        {"xx_NAO.EXISTE", "a\xC3\xA7", u"aç", "and so does one that is not installed"},
        {"pt_BR.ISO-8859-1", "a\xE7", u"aç", "Latin 1, where that locale is installed"},
    };
    for (const TCaso& caso : casos) {
        const TVariavel localidade("LC_ALL", caso.Localidade);
        if (std::string_view(caso.Localidade).ends_with("1") && !::newlocale(LC_CTYPE_MASK, caso.Localidade, nullptr))
            continue;
        EXPECT_EQ(Interno::TDecodificadorAnsi().Decodificar(caso.Bytes), caso.Esperado) << caso.Porque;
    }
}

}  // namespace
}  // namespace OryUtils
