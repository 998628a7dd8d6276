#include "oryutils/platform/Maquina.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <array>
#include <lmcons.h>

namespace OryUtils::Interno {

std::optional<std::u16string> BuscarNomeDaMaquina(std::uint32_t& AErro) {
    std::array<wchar_t, MAX_PATH + 1> nome{};
    auto tamanho = static_cast<DWORD>(nome.size());
    if (!::GetComputerNameW(nome.data(), &tamanho)) {
        AErro = ::GetLastError();
        return std::nullopt;
    }
    return DeWide({nome.data(), tamanho});
}

std::optional<std::u16string> BuscarNomeDoUsuario() {
    std::array<wchar_t, UNLEN + 1> nome{};
    auto tamanho = static_cast<DWORD>(nome.size());
    if (!::GetUserNameW(nome.data(), &tamanho)) return std::nullopt;
    return DeWide(nome.data());
}

std::optional<TVersaoDoSistema> BuscarVersaoDoSistema() {
    OSVERSIONINFOW versao{};
    versao.dwOSVersionInfoSize = sizeof versao;
    if (!::GetVersionExW(&versao)) return std::nullopt;
    return TVersaoDoSistema{versao.dwPlatformId, versao.dwMajorVersion, versao.dwMinorVersion,
                            DeWide(versao.szCSDVersion)};
}

}  // namespace OryUtils::Interno
