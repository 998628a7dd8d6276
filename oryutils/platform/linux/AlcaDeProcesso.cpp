#include "oryutils/platform/AlcaDeProcesso.hpp"

#include <fcntl.h>
#include <unistd.h>

namespace OryUtils {

std::intptr_t TAlcaDeProcesso::Duplicar(std::intptr_t AAlca) noexcept {
    if (AAlca == 0) return 0;
    const int copia = ::fcntl(static_cast<int>(AAlca), F_DUPFD_CLOEXEC, 1);  // 0 would mean no handle
    return copia < 0 ? 0 : copia;
}

void TAlcaDeProcesso::Fechar(std::intptr_t AAlca) noexcept {
    if (AAlca != 0) ::close(static_cast<int>(AAlca));
}

}  // namespace OryUtils
