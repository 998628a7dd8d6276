#include "oryutils/platform/Aleatorio.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <bcrypt.h>
#include <limits>
#include <stdexcept>

namespace OryUtils::Interno {

void PreencherAleatorio(std::span<std::byte> ABytes) {
    while (!ABytes.empty()) {
        const std::size_t parte = std::min<std::size_t>(ABytes.size(), std::numeric_limits<ULONG>::max());
        if (::BCryptGenRandom(nullptr, reinterpret_cast<UCHAR*>(ABytes.data()), static_cast<ULONG>(parte),
                              BCRYPT_USE_SYSTEM_PREFERRED_RNG) < 0)
            throw std::runtime_error("BCryptGenRandom");
        ABytes = ABytes.subspan(parte);
    }
}

}  // namespace OryUtils::Interno
