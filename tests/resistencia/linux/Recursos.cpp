#include "resistencia/Recursos.hpp"

#include <filesystem>
#include <iterator>
#include <malloc.h>
#include <sys/wait.h>

namespace OryUtils::Testes {

TRecursos BuscarRecursos() {
    const std::filesystem::directory_iterator descritores("/proc/self/fd");
    return {{"descriptors", std::distance(begin(descritores), end(descritores))}};
}

long BuscarMemoriaKiB() {
    const auto memoria = ::mallinfo2();
    return static_cast<long>((memoria.uordblks + memoria.hblkhd) / 1024);
}

long ContarFilhosMortos() {
    long mortos = 0;
    while (::waitpid(-1, nullptr, WNOHANG) > 0) ++mortos;
    return mortos;
}

}  // namespace OryUtils::Testes
