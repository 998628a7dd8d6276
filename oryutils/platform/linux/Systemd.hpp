#pragma once

#include "oryutils/platform/Servicos.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Where units that the administrator owns are kept.
inline constexpr std::string_view CPastaUnidades = "/etc/systemd/system";

/// True when ANome can be the name of a unit: letters, digits and ":_.\@-", not beginning with a point or a hyphen. So
/// it can be neither an option nor a path.
bool EhNomeDeUnidade(std::string_view ANome) noexcept;

/// The text of the unit file of a service that runs AExecutavel, a path or a command line whose arguments are split as
/// on Windows. Empty when a line break or a control character would forge another line.
std::string MontarUnidade(std::string_view ANomeExibicao, std::string_view AExecutavel);

/// What "systemctl show" prints of a service, as the states of the service manager; nothing when it is not loaded.
struct TSituacaoUnidade {
    TSituacaoServico Situacao{};
    std::uint32_t IDProcesso = 0;
    bool TemTrabalho = false;  // a start or a stop waits in the queue
};
std::optional<TSituacaoUnidade> LerSituacaoUnidade(std::string_view ASaida);

/// The systemd of this machine with units in APasta; null when systemctl does not answer that it runs.
std::unique_ptr<TGerenciadorServicos> AbrirSystemd(std::string_view APasta, TAcessoGerenciador AAcesso);

}  // namespace OryUtils::Interno
