#include "../Sistema.hpp"

#include <csignal>
#include <cstdlib>
#include <poll.h>
#include <unistd.h>

namespace Sistema {

void PrepararSaida() {}

void GerarHerdeiro(const std::string& AArgumento) {
    ::setenv("ORY_PAI", std::to_string(::getpid()).c_str(), 1);
    if (::fork() != 0) return;
    ::execl("/proc/self/exe", "herdeiro", AArgumento.c_str(), nullptr);
    std::abort();
}

void EsperarPai() {
    const char* pai = std::getenv("ORY_PAI");
    while (pai && std::to_string(::getppid()) == pai) EsperarUmPouco();
}

void EsperarUmPouco() { ::poll(nullptr, 0, 1); }

void Morrer() {
    std::raise(SIGKILL);
    std::abort();
}

}  // namespace Sistema
