#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/platform/linux/Descritor.hpp"

#include "files/LogApoio.hpp"

#include <array>
#include <fcntl.h>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using namespace OryUtils;

TEST(LogEmCano, SemLeitorNaoFazEsperar) {
    const TPastaTemporaria pasta;
    ASSERT_EQ(::mkfifo((pasta.Caminho() / "c.log").c_str(), 0600), 0);
    TAmbienteDeTeste ambiente;
    TLogDeTeste log(pasta.Nome("c"), ambiente);
    log.Adicionar(u"linha", clBlue);
    log.SalvarArquivoLog();
    EXPECT_FALSE(log.EstahSalvo());
    EXPECT_EQ(ambiente.Tentativas, 14);
}

TEST(LogEmCano, UmTextoMaiorQueOCanoChegaTodo) {
    const TPastaTemporaria pasta;
    const auto cano = pasta.Caminho() / "c.log";
    ASSERT_EQ(::mkfifo(cano.c_str(), 0600), 0);
    TAmbienteDeTeste ambiente;
    TLogDeTeste log(pasta.Nome("c"), ambiente);
    for (int i = 0; i < 5'000; ++i) log.Adicionar(u"uma linha de muitas, mais do que cabe num cano", clBlue);
    std::string lido;
    std::thread leitor([&] {
        std::ifstream leitura(cano, std::ios::binary);
        for (std::array<char, 50'000> parte{}; leitura.read(parte.data(), parte.size()) || leitura.gcount() > 0;)
            lido.append(parte.data(), static_cast<std::size_t>(leitura.gcount()));
    });
    do log.SalvarArquivoLog();
    while (!log.EstahSalvo());  // until the reader is there
    leitor.join();
    EXPECT_EQ(lido, ParaUtf8(log.GetTexto()) + "\n");
}

/// Returns when the thread of that number waits for something.
void EsperarQueEspere(pid_t AThread) {
    const std::string nome = "/proc/self/task/" + std::to_string(AThread) + "/stat";
    for (std::string dados; dados.find(") S ") == dados.npos; std::this_thread::yield())
        std::getline(std::ifstream(nome), dados);
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
