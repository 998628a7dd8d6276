#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/DadosDoArquivo.hpp"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace OryUtils::Interno {
namespace {

constexpr std::string_view CAbridor = "xdg-open";

/// Split at blanks outside double quotes; the quotes go.
std::vector<std::string> SepararParametros(std::string_view AParametros) {
    std::vector<std::string> resultado;
    bool entreAspas = false;
    bool aberto = false;  // "" is a parameter too
    for (const char c : AParametros) {
        if (c == '"') {
            entreAspas = !entreAspas;
        } else if (!entreAspas && (c == ' ' || c == '\t')) {
            aberto = false;
            continue;
        }
        if (!aberto) resultado.emplace_back();
        aberto = true;
        if (c != '"') resultado.back() += c;
    }
    return resultado;
}

void LigarAoNada() {
    const int nada = ::open("/dev/null", O_RDWR);
    if (nada < 0) return;
    for (const int alca : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) ::dup2(nada, alca);
    if (nada > STDERR_FILENO) ::close(nada);
}

/// Starts a program that belongs to nobody here: a grandchild, in a session of its own, away from our streams. The
/// error for which the system has not started it; 0 when it has. Between the forks and the start only calls that any
/// signal handler may make.
int Disparar(std::vector<std::string> AComando) {
    std::vector<char*> argumentos;
    for (std::string& parte : AComando) argumentos.push_back(parte.data());
    argumentos.push_back(nullptr);
    // Closed by the start itself; the error comes, in a byte, when that fails.
    int aviso[2];
    if (::pipe2(aviso, O_CLOEXEC) != 0) return errno;
    const pid_t filho = ::fork();
    if (filho == 0) {
        ::setsid();
        const pid_t neto = ::fork();
        if (neto > 0) ::_exit(0);
        if (neto == 0) {
            LigarAoNada();
            // Only what is looked for by its name: of a file that is no program execvp would make a shell's script.
            const bool procurado = std::strchr(argumentos[0], '/') == nullptr;
            (procurado ? ::execvp : ::execv)(argumentos[0], argumentos.data());
        }
        const auto falha = static_cast<unsigned char>(errno);
        const ssize_t escritos = ::write(aviso[1], &falha, 1);
        ::_exit(escritos == 1 ? 126 : 127);
    }
    unsigned char falha = filho > 0 ? 0 : EAGAIN;
    ::close(aviso[1]);
    if (filho > 0) {
        while (::read(aviso[0], &falha, 1) < 0 && errno == EINTR) continue;
        while (::waitpid(filho, nullptr, 0) < 0 && errno == EINTR) continue;
    }
    ::close(aviso[0]);
    return falha;
}

}  // namespace

bool AbrirComProgramaPadrao(std::u16string_view AArquivo, std::u16string_view AParametros) {
    if (AArquivo.find(u'\0') != AArquivo.npos || AParametros.find(u'\0') != AParametros.npos) return false;
    // Whole, so that a name is neither an option nor looked for among the programs.
    const std::unique_ptr<char, decltype(&std::free)> nome(::realpath(ParaUtf8(AArquivo).c_str(), nullptr), &std::free);
    struct stat dados {};
    if (!nome || ::stat(nome.get(), &dados) != 0) return false;
    if (S_ISREG(dados.st_mode) && ::access(nome.get(), X_OK) == 0) {
        std::vector<std::string> comando = SepararParametros(ParaUtf8(AParametros));
        comando.insert(comando.begin(), nome.get());
        const int erro = Disparar(std::move(comando));
        // On some disks every file may be executed, also those that are no program.
        if (erro != ENOEXEC) return erro == 0;
    }
    return Disparar({std::string(CAbridor), nome.get()}) == 0;
}

}  // namespace OryUtils::Interno
