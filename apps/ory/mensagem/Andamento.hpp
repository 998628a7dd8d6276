#pragma once

#include "Ambiente.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace Ory {

/// What a line of the input says: "42", "42 text" or "text". A number from 0 to 100 is the share, with decimals or "%"
/// or without; what follows it, and any other line, is the text.
struct TLinhaDeAndamento {
    std::optional<double> Percentual{};
    std::optional<std::string> Texto{};
    bool operator==(const TLinhaDeAndamento&) const = default;
};
TLinhaDeAndamento LerLinhaDeAndamento(std::string_view ALinha);

/// Shows a progress dialog that the lines of the input drive, until the input ends: smSim. Once the user has cancelled
/// it reads no more: smCancelada.
int MostrarAndamento(std::u16string_view ATitulo, std::u16string_view AMensagem, TAmbiente& AAmbiente);

}  // namespace Ory
