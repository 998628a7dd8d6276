#include "oryutils/platform/linux/PastaInicial.hpp"

#include "oryutils/platform/VariavelDeAmbiente.hpp"

#include <cerrno>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace OryUtils::Interno {

std::string BuscarPastaInicial() {
    if (std::string pasta = BuscarVariavelDeAmbiente("HOME"); pasta.starts_with('/')) return pasta;
    std::vector<char> area(1024);
    passwd conta{};
    passwd* achada = nullptr;
    while (::getpwuid_r(::geteuid(), &conta, area.data(), area.size(), &achada) == ERANGE) area.resize(area.size() * 2);
    return achada && achada->pw_dir ? achada->pw_dir : "";
}

std::string BuscarPastaDeConfiguracoes() {
    if (std::string pasta = BuscarVariavelDeAmbiente("XDG_CONFIG_HOME"); pasta.starts_with('/')) return pasta;
    const std::string inicio = BuscarPastaInicial();
    return inicio.empty() ? inicio : inicio + "/.config";
}

}  // namespace OryUtils::Interno
