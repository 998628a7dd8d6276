#include "oryutils/platform/FusoHorario.hpp"

#include <time.h>

namespace OryUtils::Interno {

std::int32_t BuscarDeslocamentoNoInstante(std::int64_t AInstante) {
    // localtime_r need not look at TZ by itself.
    ::tzset();
    const time_t instante = AInstante;
    tm partes{};
    if (!::localtime_r(&instante, &partes)) return 0;
    return static_cast<std::int32_t>(partes.tm_gmtoff);
}

}  // namespace OryUtils::Interno
