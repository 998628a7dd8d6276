#include "resistencia/Recursos.hpp"

#include <filesystem>
#include <iterator>
#include <sys/wait.h>

namespace OryUtils::Testes {

TRecursos BuscarRecursos() {
    const std::filesystem::directory_iterator descritores("/proc/self/fd");
    return {{"descriptors", std::distance(begin(descritores), end(descritores))}};
}

long ContarFilhosMortos() {
    long mortos = 0;
    while (::waitpid(-1, nullptr, WNOHANG) > 0) ++mortos;
    return mortos;
}

}  // namespace OryUtils::Testes
