#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OryUtils::Interno {

/// The name of this machine: GetComputerName; gethostname on Linux. None when the system refuses, with its error code
/// in AErro.
std::optional<std::u16string> BuscarNomeDaMaquina(std::uint32_t& AErro);

/// The account under which this program runs: GetUserName; the account database's name of the effective user on Linux.
std::optional<std::u16string> BuscarNomeDoUsuario();

/// What GetVersionEx tells.
struct TVersaoDoSistema {
    std::uint32_t Plataforma = 0;  // 1 = Windows 9x, 2 = Windows NT
    std::uint32_t Maior = 0;
    std::uint32_t Menor = 0;
    std::u16string PacoteDeServico{};
};

/// None when the call fails, and on Linux.
std::optional<TVersaoDoSistema> BuscarVersaoDoSistema();

}  // namespace OryUtils::Interno
