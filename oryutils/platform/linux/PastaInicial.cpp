#include "oryutils/platform/linux/PastaInicial.hpp"

#include "oryutils/platform/linux/Exibicao.hpp"

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

}  // namespace OryUtils::Interno
