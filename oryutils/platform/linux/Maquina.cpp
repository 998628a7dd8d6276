#include "oryutils/platform/Maquina.hpp"

#include "oryutils/characters/Utf.hpp"

#include <climits>

#include <array>
#include <cerrno>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace OryUtils::Interno {

std::optional<std::u16string> BuscarNomeDaMaquina(std::uint32_t& AErro) {
    std::array<char, HOST_NAME_MAX + 1> nome{};
    if (::gethostname(nome.data(), nome.size() - 1) != 0) {
        AErro = static_cast<std::uint32_t>(errno);
        return std::nullopt;
    }
    return DeUtf8(nome.data());
}

std::optional<std::u16string> BuscarNomeDoUsuario() {
    std::vector<char> area(1024);
    passwd conta{};
    passwd* achada = nullptr;
    while (::getpwuid_r(::geteuid(), &conta, area.data(), area.size(), &achada) == ERANGE) area.resize(area.size() * 2);
    if (!achada) return std::nullopt;
    return DeUtf8(achada->pw_name);
}

std::optional<TVersaoDoSistema> BuscarVersaoDoSistema() { return std::nullopt; }

}  // namespace OryUtils::Interno
