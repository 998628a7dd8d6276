#include "oryutils/platform/Executavel.hpp"

#include "oryutils/characters/Utf.hpp"

#include <climits>

#include <unistd.h>

namespace OryUtils::Interno {

std::u16string BuscarArquivoExecutavel() {
    char caminho[PATH_MAX];
    const ssize_t tamanho = ::readlink("/proc/self/exe", caminho, sizeof caminho);
    return tamanho > 0 ? DeUtf8({caminho, static_cast<std::size_t>(tamanho)}) : std::u16string();
}

}  // namespace OryUtils::Interno
