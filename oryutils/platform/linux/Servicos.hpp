#pragma once

#include "oryutils/platform/Servicos.hpp"

#include <memory>
#include <string_view>

namespace OryUtils::Interno {

/// The systemd of this machine with units in APasta; null when systemctl does not answer that systemd runs.
std::unique_ptr<TGerenciadorServicos> AbrirSystemd(std::string_view APasta, TAcessoGerenciador AAcesso);

}  // namespace OryUtils::Interno
