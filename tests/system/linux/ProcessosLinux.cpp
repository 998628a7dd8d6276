#include "oryutils/platform/CodificacaoAnsi.hpp"
#include "oryutils/platform/linux/Elevacao.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/Auxiliar.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace OryUtils {
namespace {

using Testes::Comando;
using Testes::TPastaTemporaria;

/// A variable of the environment, given back its value at the end.
class TVariavel {
public:
    TVariavel(const char* ANome, const std::string& AValor) : FNome(ANome) {
        if (const char* valor = std::getenv(ANome)) FAnterior = valor;
        ::setenv(ANome, AValor.c_str(), 1);
    }
    ~TVariavel() { FAnterior ? ::setenv(FNome, FAnterior->c_str(), 1) : ::unsetenv(FNome); }
    TVariavel(const TVariavel&) = delete;
    TVariavel& operator=(const TVariavel&) = delete;

private:
    const char* FNome;
    std::optional<std::string> FAnterior;
};

std::ptrdiff_t ContarDescritores() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), std::filesystem::directory_iterator());
}

TEST(ProcessosLinux, NadaFicaAberto) {
    std::vector<std::u16string> linhas;
    TOryUtilsSistema::ExecutarComandoComRetorno(Comando(u"nada"), linhas);
    const std::ptrdiff_t antes = ContarDescritores();
    for (int i = 0; i < 5; ++i) {
        TOryUtilsSistema::ExecutarComandoComRetorno(Comando(u"nada"), linhas);
        TOryUtilsSistema::ExecutarComandoComRetorno(u"este-programa-nao-existe", linhas);
        TOryUtilsSistema::ExecutouComando(Comando(u"nada"), i % 2 == 0, false);
        TOryUtilsSistema::BuscarListaDeProcessosWindows(u"");
        TOryUtilsSistema::FinalizouProcesso(u"este-programa-nao-existe");
    }
    EXPECT_EQ(ContarDescritores(), antes);
}

TEST(ProcessosLinux, OProgramaEhProcuradoNoPathESemShell) {
    const TPastaTemporaria pasta;
    std::filesystem::create_symlink(Testes::ProgramaAuxiliar(), pasta / "arp");
    const TVariavel caminho("PATH", (pasta / "").string());
    EXPECT_EQ(TOryUtilsSistema::ExecutarComandoComRetorno(u"  arp argumentos $HOME *;ls"), u"[$HOME]\r\n[*;ls]");
}

TEST(ProcessosLinux, QuemEleva) {
    const TPastaTemporaria pasta;
    const TVariavel caminho("PATH", "/nao/existe::" + (pasta / "").string());
    using Plataforma::BuscarElevador;
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
        EXPECT_EQ(Plataforma::TDecodificadorAnsi().Decodificar(caso.Bytes), caso.Esperado) << caso.Porque;
    }
}

}  // namespace
}  // namespace OryUtils
