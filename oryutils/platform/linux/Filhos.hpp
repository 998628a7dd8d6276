#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

namespace OryUtils::Interno {

/// Stands for /dev/null among the streams of a child.
inline constexpr int CNenhumFluxo = -2;

/// How a child process is started.
struct TPedidoDeFilho {
    std::vector<std::string> Argumentos{};  // the first one is the program, looked up on the PATH without a "/"
    std::string Pasta{};                    // empty: the caller's
    int Entrada = -1;                       // descriptors to become 0, 1 and 2; -1 keeps the caller's; or CNenhumFluxo
    int Saida = -1;
    int Erro = -1;
    bool SessaoPropria = true;  // without it, the caller's group and terminal
};

/// Starts a child without copying the memory of this process (posix_spawn). It inherits the descriptors 0, 1 and 2 and
/// no others. The result is its number, or the negated
/// error of the system when it cannot be started. EsperarFilho clears the ended child away; ColherFilhos does so for
/// children that nobody waits for.
pid_t GerarFilho(const TPedidoDeFilho& APedido);

/// Clears away the ended children of GerarFilho that nobody waits for.
void ColherFilhos() noexcept;

/// A pidfd that is closed in children; 0 for none.
std::intptr_t AbrirPidfd(pid_t APid) noexcept;

/// Waits for the end of a process; true when it has ended. APidfd may be 0 for a child of GerarFilho.
bool EsperarFilho(pid_t APid, std::intptr_t APidfd, int AMilissegundos) noexcept;

/// True when that pidfd's process has ended, cleared away or not.
bool Terminou(std::intptr_t APidfd) noexcept;

}  // namespace OryUtils::Interno
