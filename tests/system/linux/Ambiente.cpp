#include "system/Ambiente.hpp"

#include <cstdlib>

namespace Testes {

std::string BuscarVariavel(const std::string& ANome) {
    const char* valor = std::getenv(ANome.c_str());
    return valor ? valor : "";
}

void DefinirVariavel(const std::string& ANome, const std::string& AValor) {
    if (AValor.empty())
        ::unsetenv(ANome.c_str());
    else
        ::setenv(ANome.c_str(), AValor.c_str(), 1);
}

void EnviarMensagemAEstaThread() {}

}  // namespace Testes
