#include "oryutils/platform/linux/Elevacao.hpp"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace OryUtils::Plataforma {
namespace {

bool EstahNoCaminho(const std::string& APrograma) {
    const char* variavel = std::getenv("PATH");
    std::string_view caminho = variavel ? variavel : "/usr/bin:/bin";
    while (!caminho.empty()) {
        const std::string_view pasta = caminho.substr(0, caminho.find(':'));
        if (::access((std::string(pasta) + '/' + APrograma).c_str(), X_OK) == 0) return true;
        caminho.remove_prefix(std::min(pasta.size() + 1, caminho.size()));
    }
    return false;
}

}  // namespace

std::vector<std::string> BuscarElevador(bool AManterPasta) {
    if (EstahNoCaminho("pkexec")) {
        // It goes to root's folder unless told to stay.
        if (AManterPasta) return {"pkexec", "--keep-cwd"};
        return {"pkexec"};
    }
    if (EstahNoCaminho("sudo")) return {"sudo", "-A", "--"};
    return {};
}

}  // namespace OryUtils::Plataforma
