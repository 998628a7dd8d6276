// The command on a pseudo-terminal: what a person at a terminal without windows sees and types.

#include <gtest/gtest.h>

#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct TDialogo {
    std::string Tela;   ///< what the terminal showed, the typed echo included
    std::string Saida;  ///< standard output
    int Situacao = -1;
};

std::string LerTudo(int ADescritor, std::chrono::seconds ALimite) {
    std::string texto;
    char bloco[4096];
    const auto fim = std::chrono::steady_clock::now() + ALimite;
    while (std::chrono::steady_clock::now() < fim) {
        pollfd espera{ADescritor, POLLIN, 0};
        if (::poll(&espera, 1, 1000) <= 0) continue;
        const ssize_t lidos = ::read(ADescritor, bloco, sizeof bloco);
        if (lidos <= 0) break;  // a closed pseudo-terminal answers an error
        texto.append(bloco, static_cast<std::size_t>(lidos));
    }
    return texto;
}

// Runs ory with stdin and stderr on a terminal of its own, where ADigitado stands typed from the start.
TDialogo Conversar(std::vector<std::string> AArgumentos, const std::string& ADigitado) {
    TDialogo dialogo;
    const int mestre = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (mestre < 0 || ::grantpt(mestre) != 0 || ::unlockpt(mestre) != 0) {
        ADD_FAILURE() << "no pseudo-terminal";
        return dialogo;
    }
    const std::string nome = ::ptsname(mestre);
    const int escravo = ::open(nome.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
    int saida[2];
    if (escravo < 0 || ::pipe2(saida, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no terminal or pipe";
        return dialogo;
    }
    AArgumentos.insert(AArgumentos.begin(), ORY_COMANDO);
    std::vector<char*> argumentos;
    for (std::string& argumento : AArgumentos) argumentos.push_back(argumento.data());
    argumentos.push_back(nullptr);

    const pid_t filho = ::fork();
    if (filho == 0) {
        ::setsid();
        ::ioctl(escravo, TIOCSCTTY, 0);
        ::dup2(escravo, STDIN_FILENO);
        ::dup2(escravo, STDERR_FILENO);
        ::dup2(saida[1], STDOUT_FILENO);
        ::unsetenv("DISPLAY");
        ::unsetenv("WAYLAND_DISPLAY");
        ::execv(argumentos[0], argumentos.data());
        ::_exit(127);
    }
    ::close(escravo);
    ::close(saida[1]);
    EXPECT_EQ(::write(mestre, ADigitado.data(), ADigitado.size()), static_cast<ssize_t>(ADigitado.size()));
    dialogo.Tela = LerTudo(mestre, std::chrono::seconds(60));
    dialogo.Saida = LerTudo(saida[0], std::chrono::seconds(5));
    int situacao = 0;
    ::waitpid(filho, &situacao, 0);
    dialogo.Situacao = WIFEXITED(situacao) ? WEXITSTATUS(situacao) : -1;
    ::close(mestre);
    ::close(saida[0]);
    return dialogo;
}

const std::vector<std::string> CConfirmacao{"mensagem", "--tipo", "confirmacao", "Apagar?"};

TEST(Terminal, ConfirmacaoRespondidaPorLetraOuPorExtenso) {
    struct TCaso {
        const char* Digitado;
        const char* Saida;
        int Situacao;
        const char* Porque;
    };
    const TCaso casos[] = {
        {"s\n", "Sim\n", 0, "the letter of the caption"},
        {"não\n", "Não\n", 1, "the caption itself, accent and all"},
        {"talvez\nN\n", "Não\n", 1, "asked again until understood"},
        {"\x04", "\n", 3, "end of input is the window's close button"},
    };
    for (const TCaso& caso : casos) {
        const TDialogo dialogo = Conversar(CConfirmacao, caso.Digitado);
        EXPECT_EQ(dialogo.Saida, caso.Saida) << caso.Porque;
        EXPECT_EQ(dialogo.Situacao, caso.Situacao) << caso.Porque;
        EXPECT_NE(dialogo.Tela.find("Apagar?"), std::string::npos) << caso.Porque;
    }
}

TEST(Terminal, OpcaoPeloNumero) {
    const TDialogo dialogo = Conversar(
        {"mensagem", "Que filial?", "--opcao", "Matriz", "--opcao", "Filial 2", "--botao", "ok", "--botao", "cancelar"},
        "2\nk\n");
    EXPECT_EQ(dialogo.Saida, "OK\nFilial 2\n") << dialogo.Tela;
    EXPECT_EQ(dialogo.Situacao, 0);
}

TEST(Terminal, MensagemSemRespostaFechaPeloTemporizador) {
    auto argumentos = CConfirmacao;
    argumentos.insert(argumentos.end(), {"--fechar-em", "1"});
    const TDialogo dialogo = Conversar(argumentos, "");
    EXPECT_EQ(dialogo.Situacao, 3);
    EXPECT_NE(dialogo.Tela.find("00:00:01 segundo(s)"), std::string::npos) << dialogo.Tela;
}

}  // namespace
