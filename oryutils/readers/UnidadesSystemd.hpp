#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The texts that systemd reads and that systemctl prints.
namespace OryUtils::Interno {

/// True when ANome can be the name of a unit: letters, digits and ":_.\@-", not beginning with a point or a hyphen.
/// Such a name is neither an option nor a path.
bool EhNomeDeUnidade(std::string_view ANome) noexcept;

/// The text of the unit file of a service that runs AExecutavel. Empty when AExecutavel is empty or when one of the
/// texts holds a control character, which could forge a line.
/// AEhCaminho  true: AExecutavel is a path, whose blanks need no quotes; false: it is a command line, whose arguments
///             are split as on Windows
std::string MontarUnidade(std::string_view ANomeExibicao, std::string_view AExecutavel, bool AEhCaminho);

/// What "systemctl show" tells of a service.
struct TSituacaoUnidade {
    /// 1 stopped, 2 start pending, 3 stop pending, 4 running, 5 continue pending, 6 pause pending, 7 paused.
    std::uint32_t Estado = 0;
    std::uint32_t IDProcesso = 0;
    bool TemTrabalho = false;  // a start or a stop waits in the queue
};
/// Reads the output of "systemctl show"; nothing when the unit is not loaded or its state is unknown.
std::optional<TSituacaoUnidade> LerSituacaoUnidade(std::string_view ASaida);

}  // namespace OryUtils::Interno
