#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

using TEnderecoIP = std::array<std::uint8_t, 4>;
using TEnderecoMac = std::array<std::uint8_t, 6>;

/// The hardware address that a text like /proc/net/arp has for AEndereco: a completed entry of an Ethernet kind.
std::optional<TEnderecoMac> ProcurarVizinho(std::string_view ATabela, const TEnderecoIP& AEndereco);

/// From a text like /proc/net/route.
/// Whether AEndereco belongs to a network that is reached without a gateway.
bool EstahNoEnlace(std::string_view ATabela, const TEnderecoIP& AEndereco);
/// The interface of the default route of the lowest metric; empty when there is none.
std::string BuscarInterfacePadrao(std::string_view ATabela);

}  // namespace OryUtils::Interno
