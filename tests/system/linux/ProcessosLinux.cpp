// Programs of another user, of which the system tells no more than fifteen bytes of the name.
#include "oryutils/platform/InicioDeProcessos.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "system/Auxiliar.hpp"

#include <fstream>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace OryUtils {
namespace {

/// What APergunta answers to a user without rights.
bool PerguntarComoNinguem(const std::function<bool()>& APergunta) {
    constexpr uid_t CNinguem = 65534;
    const pid_t filho = ::fork();
    if (filho == 0) ::_exit(::setgid(CNinguem) == 0 && ::setuid(CNinguem) == 0 && APergunta() ? 0 : 1);
    int situacao = -1;
    ::waitpid(filho, &situacao, 0);
    return situacao == 0;
}

TEST(ProcessosLinux, NomesCompridosDeOutroUsuario) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root starts programs of another user";
    const Testes::TPastaTemporaria pasta;
    const std::string programa = "ory_programa_de_nome_comprido_a";
    const std::string roteiro = "ory_programa_de_nome_comprido_b";
    fs::copy_file(Testes::ProgramaAuxiliar(), pasta / programa);
    std::ofstream(pasta / roteiro) << "#!/bin/sh\nwhile :; do sleep 1; done\n";
    fs::permissions(pasta / roteiro, fs::perms::owner_all);
    for (const std::string& nome : {programa, roteiro}) {
        const fs::path arquivo = pasta / nome;
        const auto processo = Interno::CriarProcesso(Testes::Comando(u"viver 60000", arquivo), false);
        ASSERT_TRUE(processo);
        EXPECT_TRUE(PerguntarComoNinguem([&] { return ProcessIsRunning(arquivo.filename().u16string(), u"root"); }))
            << nome;
        EXPECT_FALSE(PerguntarComoNinguem([&] { return ProcessIsRunning(u"ory_programa_de", u"root"); })) << nome;
        EXPECT_TRUE(TOryUtilsSistema::FinalizouProcessoPeloPID(processo->ID).Status);
        Interno::EsperarProcesso(*processo, Interno::CEsperaSemLimite, false);
    }
}

}  // namespace
}  // namespace OryUtils
