#include "oryutils/platform/Caminho.hpp"

#include "oryutils/characters/Utf.hpp"

#include <cstdlib>
#include <string>
#include <unistd.h>

namespace OryUtils::Interno {

bool ExisteComando(std::u16string_view AComando) {
    const char* caminho = std::getenv("PATH");
    std::string_view pastas = caminho ? caminho : "/bin:/usr/bin";
    const std::string nome = "/" + ParaUtf8(AComando);
    for (;;) {
        const std::size_t fim = pastas.find(':');
        const std::string_view pasta = pastas.substr(0, fim);
        // An empty entry is the current folder.
        if (::access(std::string(pasta.empty() ? "." : pasta).append(nome).c_str(), X_OK) == 0) return true;
        if (fim == std::string_view::npos) return false;
        pastas.remove_prefix(fim + 1);
    }
}

}  // namespace OryUtils::Interno
