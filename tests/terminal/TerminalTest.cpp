// The command on a pseudo-terminal: what a person at a terminal without windows sees and types.

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <poll.h>
#include <sstream>
#include <stdlib.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>
#include <vector>

namespace {

struct TDialogo {
    std::string Tela;   ///< what the terminal showed, the typed echo included
    std::string Saida;  ///< standard output
    int Situacao = -1;
    bool ComEco = false;  ///< in the end the terminal shows what is typed
};

/// Up to the end, or up to AAte.
std::string LerTudo(int ADescritor, std::chrono::seconds ALimite, const std::string& AAte = {}) {
    std::string texto;
    char bloco[4096];
    const auto fim = std::chrono::steady_clock::now() + ALimite;
    while (std::chrono::steady_clock::now() < fim) {
        pollfd espera{ADescritor, POLLIN, 0};
        if (::poll(&espera, 1, 1000) <= 0) continue;
        const ssize_t lidos = ::read(ADescritor, bloco, sizeof bloco);
        if (lidos <= 0) break;  // a closed pseudo-terminal answers an error
        texto.append(bloco, static_cast<std::size_t>(lidos));
        if (!AAte.empty() && texto.find(AAte) != std::string::npos) break;
    }
    return texto;
}

// Runs ory with stdin and stderr on a terminal of its own, where ADigitado stands typed from the start, or from when
// the terminal shows AQuando on.
TDialogo Conversar(std::vector<std::string> AArgumentos, const std::string& ADigitado, unsigned short AColunas = 80,
                   const std::string& AQuando = {}) {
    TDialogo dialogo;
    const int mestre = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    const bool temPar = mestre >= 0 && ::grantpt(mestre) == 0 && ::unlockpt(mestre) == 0;
    const int escravo = temPar ? ::open(::ptsname(mestre), O_RDWR | O_NOCTTY | O_CLOEXEC) : -1;
    const winsize tamanho{24, AColunas, 0, 0};
    ::ioctl(mestre, TIOCSWINSZ, &tamanho);
    int saida[2];
    if (escravo < 0 || ::pipe2(saida, O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pseudo-terminal or pipe";
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
    if (!AQuando.empty()) dialogo.Tela = LerTudo(mestre, std::chrono::seconds(30), AQuando);
    EXPECT_EQ(::write(mestre, ADigitado.data(), ADigitado.size()), static_cast<ssize_t>(ADigitado.size()));
    dialogo.Tela += LerTudo(mestre, std::chrono::seconds(60));
    dialogo.Saida = LerTudo(saida[0], std::chrono::seconds(5));
    int situacao = 0;
    ::waitpid(filho, &situacao, 0);
    dialogo.Situacao = WIFEXITED(situacao) ? WEXITSTATUS(situacao) : -1;
    termios modos{};
    dialogo.ComEco = ::tcgetattr(mestre, &modos) == 0 && (modos.c_lflag & ECHO);
    ::close(mestre);
    ::close(saida[0]);
    return dialogo;
}

TEST(Terminal, RespostasDigitadas) {
    const std::vector<std::string> confirmacao{"mensagem", "--tipo", "confirmacao", "Apagar?"};
    auto temporizada = confirmacao;
    temporizada.insert(temporizada.end(), {"--fechar-em", "1"});
    const std::vector<std::string> opcoes{"mensagem", "Que filial?", "--opcao", "Matriz",  "--opcao",
                                          "Filial 2", "--botao",     "ok",      "--botao", "cancelar"};
    const struct {
        std::vector<std::string> Argumentos;
        const char *Digitado, *Saida;
        int Situacao;
        const char *NaTela, *Porque;
    } casos[] = {
        {confirmacao, "s\n", "Sim\n", 0, "Apagar?", "the letter of the caption"},
        {confirmacao, "não\n", "Não\n", 1, "Apagar?", "the caption itself, accent and all"},
        {confirmacao, "talvez\nN\n", "Não\n", 1, "Apagar?", "asked again until understood"},
        {confirmacao, "\x04", "\n", 3, "Apagar?", "end of input is the window's close button"},
        {opcoes, "2\nk\n", "OK\nFilial 2\n", 0, "Que filial?", "an option by its number"},
        {confirmacao, "nao\n", "Não\n", 1, "[S]im / [N]ão [Sim]: ", "without its accent; the default is told"},
        {{"mensagem", "--tipo", "confirmacao", "Pá & Cia\x1B[2J?", "--botao", "sim=A&B", "--botao", "nao"},
         "A&B\n",
         "A&B\n",
         0,
         "Pá & Cia?[2J?",
         "a text commands nothing, and & is a letter"},
        {{"mensagem", "Nome:", "--valor", "Ana"}, "\"\"\n\n", "\n", 0, "[Ana]", "a proposed value emptied"},
        {temporizada, "", "\n", 4, "00:00:01 segundo(s)", "closed by its timer"},
    };
    for (const auto& c : casos) {
        const TDialogo dialogo = Conversar(c.Argumentos, c.Digitado);
        EXPECT_EQ(dialogo.Saida, c.Saida) << c.Porque;
        EXPECT_EQ(dialogo.Situacao, c.Situacao) << c.Porque;
        EXPECT_NE(dialogo.Tela.find(c.NaTela), std::string::npos) << c.Porque << '\n' << dialogo.Tela;
    }
}

// The person at the terminal types the lines that another program would send.
TEST(Terminal, OAndamentoReescreveUmaLinha) {
    const std::string texto = "um texto comprido que não cabe inteiro em quarenta colunas de jeito nenhum";
    const TDialogo dialogo = Conversar({"mensagem", "--andamento", "--titulo", "Cópia", "Copiando"},
                                       "10\n42 " + texto + "\n\x1B[2J\n\x04", 40);
    EXPECT_EQ(dialogo.Situacao, 0) << dialogo.Tela;
    EXPECT_EQ(dialogo.Saida, "");
    EXPECT_NE(dialogo.Tela.find("Cópia\r\n\rCopiando"), std::string::npos) << dialogo.Tela;
    EXPECT_NE(dialogo.Tela.find("\rCopiando 10%"), std::string::npos) << dialogo.Tela;
    EXPECT_NE(dialogo.Tela.find("\r" + texto.substr(0, 33) + "... 42%"), std::string::npos) << dialogo.Tela;
}

TEST(Terminal, PedidosDigitados) {
    const std::string pasta = testing::TempDir();
    std::ofstream(pasta + "/ory-velho.txt") << "1";
    const struct {
        std::vector<std::string> Argumentos;
        const char* Digitado;
        std::string Saida;
        int Situacao;
        const char *NaTela, *Porque;
    } casos[] = {
        {{"CPF?", "--entrada", "cpf"},
         "1\n\n529.982.247-25\n\n",
         "52998224725\n",
         0,
         "CPF inválido. Verifique.",
         "told, and asked again"},
        {{"CPF?", "--entrada", "cpf", "--obrigatorio"},
         "\n\n\nc\n",
         "",
         3,
         "Preenchimento obrigatório. Verifique.",
         "cancelled at last"},
        {{"Filiais?", "--lista", "Matriz", "--lista", "Filial 2", "--lista", "Filial 3", "--varios"},
         "filial\n3,matriz\n\n",
         "Matriz\nFilial 3\n",
         0,
         "Há mais de um:",
         "by number and text"},
        {{"Texto?", "--linhas", "--valor", "velho"}, "um\n dois\n.\n\n", "um\n dois\n", 0, "velho", "lines"},
        {{"--salvar", "ory-velho.txt", "--pasta-inicial", pasta},
         "\ns\n",
         pasta + "ory-velho.txt\n",
         0,
         "ory-velho.txt já existe.",
         "asked before"},
    };
    for (const auto& c : casos) {
        auto argumentos = c.Argumentos;
        argumentos.insert(argumentos.begin(), "mensagem");
        const TDialogo dialogo = Conversar(argumentos, c.Digitado);
        EXPECT_EQ(dialogo.Saida, c.Saida) << c.Porque;
        EXPECT_EQ(dialogo.Situacao, c.Situacao) << c.Porque;
        EXPECT_NE(dialogo.Tela.find(c.NaTela), std::string::npos) << c.Porque << '\n' << dialogo.Tela;
    }
    const TDialogo senha = Conversar({"mensagem", "Senha:", "--senha"}, "segredo\n\n", 80, "> ");
    EXPECT_EQ(senha.Saida, "segredo\n");
    EXPECT_EQ(senha.Tela.find("segredo"), std::string::npos) << senha.Tela;
    EXPECT_TRUE(senha.ComEco) << "what follows shows again";
    const TDialogo interrompida = Conversar({"mensagem", "Senha:", "--senha"}, "seg\x03", 80, "> ");
    EXPECT_TRUE(interrompida.ComEco) << "after Ctrl+C, too";
    EXPECT_EQ(interrompida.Situacao, -1) << "ended by the signal";
}

TEST(Terminal, NenhumaLinhaPassaDaLarguraENenhumaPalavraSeParte) {
    std::string longa =
        "Esta mensagem, comprida, tem acentuação e passa de qualquer largura que um terminal costuma ter: ";
    longa += longa + longa;
    for (const unsigned short colunas : std::initializer_list<unsigned short>{40, 80, 200}) {
        const TDialogo dialogo = Conversar({"mensagem", "--tipo", "confirmacao", longa}, "s\n", colunas);
        std::istringstream tela(dialogo.Tela);
        std::string juntas;
        for (std::string linha; std::getline(tela, linha);) {
            if (linha.ends_with('\r')) linha.pop_back();
            const auto letras = std::ranges::count_if(linha, [](char c) { return (c & 0xC0) != 0x80; });
            EXPECT_LE(letras, colunas) << linha;
            juntas += linha + " ";
        }
        EXPECT_NE(juntas.find(longa.substr(0, longa.size() - 1)), std::string::npos) << juntas;
    }
}

// A locale of its own, compiled for the test.
TEST(Terminal, EmLatin1) {
    const std::string pasta = testing::TempDir() + "/localidade";
    if (std::system(
            ("mkdir -p " + pasta + " && localedef -c -i pt_BR -f ISO-8859-1 " + pasta + "/pt_BR > /dev/null 2>&1")
                .c_str()) != 0)
        GTEST_SKIP() << "this machine cannot compile a locale";
    ::setenv("LOCPATH", pasta.c_str(), 1);
    ::setenv("LC_ALL", "pt_BR", 1);
    const TDialogo dialogo = Conversar({"mensagem", "--tipo", "confirmacao", "Atenção: € 5?"}, "n\xE3o\n");
    ::unsetenv("LC_ALL");
    ::unsetenv("LOCPATH");
    EXPECT_NE(dialogo.Tela.find("Aten\xE7\xE3o: ? 5?"), std::string::npos) << dialogo.Tela;
    EXPECT_EQ(dialogo.Situacao, 1);
}

// What a shell does to a log: a limit of size, a pipe in the place of the file, a name that no file can have.
TEST(Terminal, LogSemEspacoOuEmCano) {
    const std::string pasta = testing::TempDir() + "/log_no_limite";
    const auto rodar = [&](const std::string& AComando) {
        const std::string tudo = "cd " + pasta + " && " + AComando;
        return WEXITSTATUS(std::system(("bash -c '" + tudo + "' 2> " + pasta + "/erro").c_str()));
    };
    ASSERT_EQ(std::system(("rm -rf " + pasta + " && mkdir -p " + pasta).c_str()), 0);
    const std::string ory = ORY_COMANDO;
    EXPECT_EQ(rodar("ulimit -f 1; yes linha | head -n 100 | " + ory + " log cheio"), 2)
        << "told, not killed by a signal";
    EXPECT_EQ(rodar("mkfifo cano.log; echo linha | timeout 20 " + ory + " log cano --existente"), 2);
    const auto lerErro = [&] {
        std::ifstream erro(pasta + "/erro");
        std::string linha;
        std::getline(erro, linha);
        return linha;
    };
    EXPECT_EQ(lerErro(), "ory: não é um arquivo: cano.log");
    const std::string comprido(300, 'n');
    EXPECT_EQ(rodar("echo linha | " + ory + " log " + comprido), 2);
    EXPECT_EQ(lerErro(), "ory: não foi possível gravar " + comprido + ".log: o nome do arquivo é comprido demais");
}

}  // namespace
