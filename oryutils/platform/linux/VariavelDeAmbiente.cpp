#include "oryutils/platform/VariavelDeAmbiente.hpp"

#include <cstdlib>

namespace OryUtils::Interno {

std::string BuscarVariavelDeAmbiente(const char* ANome) {
    const char* valor = ::secure_getenv(ANome);
    return valor ? valor : "";
}

}  // namespace OryUtils::Interno
