#include "oryutils/platform/Relogio.hpp"

#include <algorithm>
#include <time.h>

namespace OryUtils::Interno {

TInstanteLocal BuscarInstanteLocal() {
    timespec agora{};
    ::clock_gettime(CLOCK_REALTIME, &agora);
    // Asking whether the machine's zone has changed costs a look at its file, so it is asked once a second.
    thread_local time_t segundo = 0;
    thread_local TInstanteLocal instante{};
    if (segundo != agora.tv_sec || instante.Ano == 0) {
        ::tzset();
        tm partes{};
        ::localtime_r(&agora.tv_sec, &partes);
        // A leap second shows as the second before it.
        instante = {partes.tm_year + 1900,
                    partes.tm_mon + 1,
                    partes.tm_mday,
                    partes.tm_hour,
                    partes.tm_min,
                    std::min(partes.tm_sec, 59),
                    0};
        segundo = agora.tv_sec;
    }
    instante.Milissegundo = static_cast<int>(agora.tv_nsec / 1'000'000);
    return instante;
}

}  // namespace OryUtils::Interno
