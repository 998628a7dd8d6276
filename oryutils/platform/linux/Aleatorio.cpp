#include "oryutils/platform/Aleatorio.hpp"

#include <cerrno>
#include <stdexcept>
#include <sys/random.h>

namespace OryUtils::Interno {

void PreencherAleatorio(std::span<std::byte> ABytes) {
    while (!ABytes.empty()) {
        const ssize_t lidos = ::getrandom(ABytes.data(), ABytes.size(), 0);
        if (lidos < 0 && errno == EINTR) continue;
        if (lidos <= 0) throw std::runtime_error("getrandom");
        ABytes = ABytes.subspan(static_cast<std::size_t>(lidos));
    }
}

}  // namespace OryUtils::Interno
