#include "system/Auxiliar.hpp"

#include <array>
#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace OryUtils::Testes {

bool EsperarArquivo(const std::filesystem::path& AArquivo) {
    const int avisos = ::inotify_init1(IN_CLOEXEC);
    ::inotify_add_watch(avisos, AArquivo.parent_path().c_str(), IN_CREATE);
    pollfd espera{avisos, POLLIN, 0};
    std::array<char, 4096> lidos;
    while (!std::filesystem::exists(AArquivo) && ::poll(&espera, 1, CMaiorEsperaDeArquivo) > 0)
        if (::read(avisos, lidos.data(), lidos.size()) <= 0) break;
    ::close(avisos);
    return std::filesystem::exists(AArquivo);
}

}  // namespace OryUtils::Testes
