#include "oryutils/platform/linux/Filhos.hpp"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace OryUtils::Interno {
namespace {

std::mutex GTrava;
constinit std::vector<pid_t> GFilhos;

// A child that is not ours any more (the host reaped it) has ended too.
bool Colher(pid_t APid) noexcept {
    const pid_t situacao = ::waitpid(APid, nullptr, WNOHANG);
    return situacao == APid || (situacao < 0 && errno == ECHILD);
}

void Esquecer(pid_t APid) noexcept {
    const std::lock_guard trava(GTrava);
    std::erase(GFilhos, APid);
}

class TAtributos {
public:
    explicit TAtributos(bool ASessaoPropria) {
        ::posix_spawnattr_init(&FAtributos);
        sigset_t sinais;
        ::sigemptyset(&sinais);
        // The child starts with no signal blocked or ignored, whatever its parent does with them.
        ::posix_spawnattr_setsigmask(&FAtributos, &sinais);
        ::sigfillset(&sinais);
        ::posix_spawnattr_setsigdefault(&FAtributos, &sinais);
        const int sessao = ASessaoPropria ? POSIX_SPAWN_SETSID : 0;
        ::posix_spawnattr_setflags(&FAtributos,
                                   static_cast<short>(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | sessao));
    }
    ~TAtributos() { ::posix_spawnattr_destroy(&FAtributos); }
    TAtributos(const TAtributos&) = delete;
    TAtributos& operator=(const TAtributos&) = delete;
    const posix_spawnattr_t* Get() const { return &FAtributos; }

private:
    posix_spawnattr_t FAtributos;
};

class TAcoes {
public:
    explicit TAcoes(const TPedidoDeFilho& APedido) {
        ::posix_spawn_file_actions_init(&FAcoes);
        const int descritores[] = {APedido.Entrada, APedido.Saida, APedido.Erro};
        for (int destino = 0; destino < 3; ++destino) {
            if (descritores[destino] >= 0) ::posix_spawn_file_actions_adddup2(&FAcoes, descritores[destino], destino);
            if (descritores[destino] == CNenhumFluxo)
                ::posix_spawn_file_actions_addopen(&FAcoes, destino, "/dev/null", O_RDWR, 0);
        }
        ::posix_spawn_file_actions_addclosefrom_np(&FAcoes, 3);
        if (!APedido.Pasta.empty()) ::posix_spawn_file_actions_addchdir_np(&FAcoes, APedido.Pasta.c_str());
    }
    ~TAcoes() { ::posix_spawn_file_actions_destroy(&FAcoes); }
    TAcoes(const TAcoes&) = delete;
    TAcoes& operator=(const TAcoes&) = delete;
    const posix_spawn_file_actions_t* Get() const { return &FAcoes; }

private:
    posix_spawn_file_actions_t FAcoes;
};

}  // namespace

pid_t GerarFilho(const TPedidoDeFilho& APedido) {
    ColherFilhos();
    const auto possuiZero = [](const std::string& ATexto) { return ATexto.find('\0') != std::string::npos; };
    if (APedido.Argumentos.empty() || APedido.Argumentos.front().empty() || possuiZero(APedido.Pasta) ||
        std::ranges::any_of(APedido.Argumentos, possuiZero))
        return -EINVAL;
    std::vector<char*> argumentos;
    // The system's function predates const; it writes nothing.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    for (const std::string& argumento : APedido.Argumentos) argumentos.push_back(const_cast<char*>(argumento.c_str()));
    argumentos.push_back(nullptr);
    const TAtributos atributos(APedido.SessaoPropria);
    const TAcoes acoes(APedido);
    const std::lock_guard trava(GTrava);
    GFilhos.reserve(GFilhos.size() + 1);
    pid_t pid = 0;
    const int erro = ::posix_spawnp(&pid, argumentos[0], acoes.Get(), atributos.Get(), argumentos.data(), environ);
    if (erro != 0) return -erro;
    GFilhos.push_back(pid);
    return pid;
}

void ColherFilhos() noexcept {
    const std::lock_guard trava(GTrava);
    std::erase_if(GFilhos, Colher);
}

std::intptr_t AbrirPidfd(pid_t APid) noexcept {
    const auto alca = static_cast<int>(::syscall(SYS_pidfd_open, APid, 0));  // it sets close-on-exec by itself
    if (alca != 0) return std::max(alca, 0);
    const int copia = ::fcntl(alca, F_DUPFD_CLOEXEC, 1);  // the number 0 stands for no handle
    ::close(alca);
    return std::max(copia, 0);
}

bool Terminou(std::intptr_t APidfd) noexcept {
    pollfd processo{.fd = static_cast<int>(APidfd), .events = POLLIN, .revents = 0};
    return ::poll(&processo, 1, 0) > 0;
}

bool EsperarFilho(pid_t APid, std::intptr_t APidfd, int AMilissegundos) noexcept {
    if (APidfd != 0) {
        pollfd processo{.fd = static_cast<int>(APidfd), .events = POLLIN, .revents = 0};
        if (::poll(&processo, 1, AMilissegundos) <= 0) return false;
        Colher(APid);
    } else {
        // Without pidfd there is nothing to wait on but the clock.
        while (!Colher(APid)) {
            if (AMilissegundos-- <= 0) return false;
            ::poll(nullptr, 0, 1);
        }
    }
    Esquecer(APid);
    return true;
}

}  // namespace OryUtils::Interno
