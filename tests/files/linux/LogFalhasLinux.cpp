#include "comum/Acaso.hpp"
#include "files/LogApoio.hpp"
#include "resistencia/Quantidade.hpp"

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace OryUtils;

/// Files of this process have at most so many bytes. What a write past them does, the signal tells: ignored, it fails
/// as on a full disk; else the system kills the process. Gives the limit that was.
rlimit LimitarArquivos(rlimit ALimite, void (*ASinal)(int)) {
    rlimit antes{};
    ::getrlimit(RLIMIT_FSIZE, &antes);
    ::setrlimit(RLIMIT_FSIZE, &ALimite);
    std::signal(SIGXFSZ, ASinal);
    return antes;
}

class LogFalhasLinux : public testing::TestWithParam<TModoGravacao> {
protected:
    const TPastaTemporaria Pasta;
    TAmbienteDeTeste Ambiente;
    const std::filesystem::path Arquivo = Pasta.Caminho() / "Cheio.log";
};

TEST_P(LogFalhasLinux, DiscoCheio) {
    Ambiente.Passo = {};  // no time passes: the log does not look at the file again by itself
    TLogDeTeste log(Arquivo.u16string(), Ambiente, GetParam());
    for (int i = 0; i < 60; ++i) log.Adicionar(u"uma linha que já cabia no disco", clBlue);
    log.SalvarArquivoLog();
    const rlimit antes = LimitarArquivos({std::filesystem::file_size(Arquivo) + 20, RLIM_INFINITY}, SIG_IGN);
    log.Adicionar(u"uma linha que não cabe mais", clBlue);
    EXPECT_EQ(log.ContarTentativas(), 14);
    LimitarArquivos(antes, SIG_DFL);
    log.Adicionar(u"há espaço de novo", clBlue);
    Ambiente.Bytes = 0;
    EXPECT_EQ(log.ContarTentativas(), 1);
    EXPECT_EQ(LerBytes(Arquivo), log.Esperar());
    EXPECT_EQ(Ambiente.Bytes, LerBytes(Arquivo).size()) << "after a fault the whole is written";
}

TEST_P(LogFalhasLinux, PastaEmQueNinguemGrava) {
    // Not even root creates a file there: neither in a folder that is there nor in one that would have to be.
    for (const std::u16string_view nome : {u"/proc/self/Log.txt", u"/proc/ory/Log.txt"}) {
        TLogDeTeste log(nome, Ambiente, GetParam());
        Ambiente.Tentativas = 0;
        EXPECT_NO_THROW(log.FinalizarLog());
        EXPECT_EQ(Ambiente.Tentativas, 14);
        EXPECT_NE(log.GetTexto().find(u"Fim do processo"), std::u16string::npos);
    }
}

TEST_P(LogFalhasLinux, NomeDeOutroSistema) {
    // Here "\" is a letter of a name: the file is made, and no folder that would be none of its own.
    TLogDeTeste log(Pasta.Nome("sub/C:\\Logs\\x.txt"), Ambiente, GetParam());
    log.FinalizarLog();
    EXPECT_TRUE(log.EstahSalvo());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Pasta.Caminho() / "sub"), {}), 1);
    EXPECT_TRUE(std::filesystem::is_regular_file(Pasta.Caminho() / "sub" / "C:\\Logs\\x.log"));
}

TEST_P(LogFalhasLinux, MortoNoMeioDaGravacao) {
    // The system itself kills a child whose write crosses the limit: the file ends where it got to.
    constexpr rlim_t CLimite = 1500;
    const pid_t filho = ::fork();
    if (filho == 0) {
        const rlimit semDespejo{0, 0};
        ::setrlimit(RLIMIT_CORE, &semDespejo);
        LimitarArquivos({CLimite, CLimite}, SIG_DFL);
        TLogDeTeste log(Arquivo.u16string(), Ambiente, GetParam());
        log.SetSalvarAutomaticamente(true);
        for (int i = 0; i < 100; ++i) log.Adicionar(u"até morrer", clBlue);
        ::_exit(0);
    }
    int estado = 0;
    ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
    ASSERT_TRUE(WIFSIGNALED(estado) && WTERMSIG(estado) == SIGXFSZ);
    const std::string pedaco = LerBytes(Arquivo);
    ASSERT_EQ(pedaco.size(), CLimite);
    ASSERT_NE(pedaco.back(), '\n');
    TLogDeTeste log(Arquivo.u16string(), Ambiente, GetParam());
    log.SetUsarArquivoLogExistente(true);
    log.Adicionar(u"o processo seguinte", clBlue);
    log.SalvarArquivoLog();
    EXPECT_TRUE(log.Esperar().starts_with(pedaco + "\n"));
    EXPECT_EQ(LerBytes(Arquivo), log.Esperar());
}

// At any moment, most of them inside of a save: every line that was told saved is there.
TEST_P(LogFalhasLinux, MortoAQualquerMomentoNaoPerdeLinhaGravada) {
    ::Testes::TAcaso sorteio;
    for (int vez = 0; vez < OryUtils::Testes::Quantidade(20, 150); ++vez) {
        std::filesystem::remove(Arquivo);
        int cano[2];
        ASSERT_EQ(::pipe(cano), 0);
        const pid_t filho = ::fork();
        if (filho == 0)
            GravarAteMorrer(Arquivo, GetParam(), [&](int ALinha) {
                if (::write(cano[1], &ALinha, sizeof ALinha) != sizeof ALinha) ::_exit(1);
            });
        ::close(cano[1]);
        int ultima = -1;
        const int esperar = static_cast<int>(sorteio() % 40);
        while (ultima < esperar && ::read(cano[0], &ultima, sizeof ultima) == sizeof ultima) {
        }
        for (volatile auto espera = sorteio() % 100'000; espera > 0;) espera = espera - 1;
        ::kill(filho, SIGKILL);
        while (::read(cano[0], &ultima, sizeof ultima) == sizeof ultima) {
        }
        ::close(cano[0]);
        ::waitpid(filho, nullptr, 0);
        SCOPED_TRACE(vez);
        ASSERT_NO_FATAL_FAILURE(ConferirLinhasConfirmadas(Arquivo, ultima));
    }
}

TEST_P(LogFalhasLinux, ExistenteQueNaoPodeSerLido) {
    constexpr uid_t CNinguem = 65534;
    GravarBytes(Arquivo, "de ontem\n");
    ASSERT_EQ(::chmod(Arquivo.c_str(), 0200), 0);
    const bool raiz = ::geteuid() == 0;  // who may read everything
    ASSERT_TRUE(!raiz || (::chown(Arquivo.c_str(), CNinguem, 0) == 0 && ::seteuid(CNinguem) == 0));
    ConferirQueEsperaOExistente(Arquivo, GetParam(), [&] { ::chmod(Arquivo.c_str(), 0600); });
    ASSERT_TRUE(!raiz || ::seteuid(0) == 0);
}

TEST(LogCodificacao, PadraoEhUtf8) {
    EXPECT_EQ(Interno::ParaTextoDoSistema(u"coração € \u4E2D \xD800"), "coração € \u4E2D \uFFFD");
}

INSTANTIATE_TEST_SUITE_P(Modos, LogFalhasLinux, testing::Values(mgReescrever, mgAcrescentar));

}  // namespace
