#include "oryutils/platform/Relogio.hpp"

#include <algorithm>
#include <time.h>

namespace OryUtils::Plataforma {

TInstanteLocal BuscarInstanteLocal() {
    timespec agora{};
    ::clock_gettime(CLOCK_REALTIME, &agora);
    ::tzset();
    tm partes{};
    ::localtime_r(&agora.tv_sec, &partes);
    // A leap second shows as the second before it.
    return {partes.tm_year + 1900,
            partes.tm_mon + 1,
            partes.tm_mday,
            partes.tm_hour,
            partes.tm_min,
            std::min(partes.tm_sec, 59),
            static_cast<int>(agora.tv_nsec / 1'000'000)};
}

}  // namespace OryUtils::Plataforma
