#include "oryutils/files/OryUtilsFiles.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/linux/Descritor.hpp"

#include "files/LogApoio.hpp"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

// Pipes in the place of files, and as what programs that are opened tell through.

namespace {

using namespace OryUtils;
using C = TOryUtilsFiles;
using std::filesystem::perms;

class Canos : public testing::Test {
protected:
    ~Canos() override { ::setenv("PATH", Caminho.c_str(), 1); }
    std::filesystem::path CriarCano(std::string_view ANome) const {
        const auto cano = Pasta / ANome;
        EXPECT_EQ(::mkfifo(cano.c_str(), 0600), 0);
        return cano;
    }
    std::u16string GravarPrograma(std::u16string_view ANome, std::string_view ATexto) const {
        std::u16string programa = Pasta.Gravar(ANome, ATexto);
        std::filesystem::permissions(programa, perms::owner_all);
        return programa;
    }

    const TPastaTemporaria Pasta;
    const std::string Caminho = std::getenv("PATH");
    TAmbienteDeTeste Ambiente;
};

TEST_F(Canos, UmLogSemLeitorNaoFazEsperar) {
    CriarCano("c.log");
    TLogDeTeste log(Pasta.Nome("c"), Ambiente);
    log.Adicionar(u"linha", clBlue);
    EXPECT_EQ(log.ContarTentativas(), 14);
    EXPECT_FALSE(log.EstahSalvo());
}

TEST_F(Canos, UmLogMaiorQueOCanoChegaTodo) {
    const auto cano = CriarCano("c.log");
    TLogDeTeste log(Pasta.Nome("c"), Ambiente);
    for (int i = 0; i < 5'000; ++i) log.Adicionar(u"uma linha de muitas, mais do que cabe num cano", clBlue);
    std::string lido;
    std::thread leitor([&] { lido = LerBytes(cano); });
    do log.SalvarArquivoLog();
    while (!log.EstahSalvo());  // until the reader is there
    leitor.join();
    EXPECT_EQ(lido, log.Esperar());
}

TEST_F(Canos, UmArquivoSemEscritorNaoFazEsperar) {
    for (const auto* nome : {"cano.exe", "cano.ini"}) {
        TArquivoInfo info;
        info.SetArquivo(CriarCano(nome).u16string());
        EXPECT_EQ(info.GetVersao(), u"");
        EXPECT_EQ(ParaUtf8(info.GetNome()), nome);
        EXPECT_EQ(info.GetData(), 0.0) << "not opened";
    }
}

TEST_F(Canos, UmProgramaRecebeOsParametros) {
    const auto cano = CriarCano("cano");
    const auto programa =
        GravarPrograma(u"-eco.sh", "#!/bin/sh\nfor p in \"$@\"; do echo \"<$p>\"; done > \"${0%/*}/cano\"\n");
    ASSERT_TRUE(C::AbrirArquivo(programa, u" um \"dois três\"  \"\" qua\"tro e\" '5"));
    EXPECT_EQ(LerBytes(cano), "<um>\n<dois três>\n<>\n<quatro e>\n<'5>\n");
    EXPECT_FALSE(C::AbrirArquivo(GravarPrograma(u"quebrado.sh", "#!/nao/existe\n"))) << "the system could not start it";
}

TEST_F(Canos, UmLogNuncaEhExecutado) {
    // A disk of another system says of every file that it may be executed; the lines of a log come from anywhere.
    const auto cano = CriarCano("cano");
    GravarPrograma(u"xdg-open", "#!/bin/sh\necho \"aberto ${1##*/}\" > \"${0%/*}/cano\"\n");
    ::setenv("PATH", (Pasta.Caminho().string() + ":" + Caminho).c_str(), 1);
    TOryUtilsArquivoLog log(Pasta.Nome(u"log"));
    log.SetFormatoMensagem(tfmSomenteTexto);
    log.InserirTexto(u"echo executado > '" + cano.u16string() + u"'", 0, clBlue);
    log.FinalizarLog();
    for (const auto modo : {perms::owner_read, perms::owner_all}) {
        std::filesystem::permissions(log.GetArquivoLog(), modo);
        log.ExibirLog();
        EXPECT_EQ(LerBytes(cano), "aberto log.log\n");
    }
}

/// Returns when the thread of that number waits for something.
void EsperarQueEspere(pid_t AThread) {
    const std::string nome = "/proc/self/task/" + std::to_string(AThread) + "/stat";
    while (LerBytes(nome).find(") S ") == std::string::npos) std::this_thread::yield();
}

/// A program that shares the standard input may have told the system not to wait.
TEST(EntradaPadrao, EsperaTambemOndeOSistemaNaoEspera) {
    std::array<int, 2> cano{};
    ASSERT_EQ(::pipe2(cano.data(), O_NONBLOCK), 0);
    const Interno::TDescritor antiga(::dup(STDIN_FILENO));
    ASSERT_EQ(::dup2(cano[0], STDIN_FILENO), STDIN_FILENO);
    ::close(cano[0]);
    std::thread escritor([saida = cano[1], leitor = ::gettid()] {
        for (int i = 0; i < 3; ++i) {
            EsperarQueEspere(leitor);
            EXPECT_EQ(::write(saida, "abc", 3), 3);
        }
        ::close(saida);
    });
    Interno::TFluxo entrada = Interno::TFluxo::EntradaPadrao();
    std::string lido;
    std::array<char, 64> parte{};
    auto erro = Interno::efNenhum;
    while (const std::size_t lidos = entrada.Ler(parte, erro)) lido.append(parte.data(), lidos);
    escritor.join();
    EXPECT_EQ(::dup2(antiga.Get(), STDIN_FILENO), STDIN_FILENO);
    EXPECT_EQ(lido, "abcabcabc");
    EXPECT_EQ(erro, Interno::efNenhum);
}

}  // namespace
