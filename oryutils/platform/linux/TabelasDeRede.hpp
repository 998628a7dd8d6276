#pragma once

#include "oryutils/platform/Rede.hpp"

#include <string>
#include <string_view>

namespace OryUtils::Plataforma {

/// The hardware address that a text like /proc/net/arp has for AEndereco: a completed entry of an Ethernet kind.
std::optional<TEnderecoMac> ProcurarVizinho(std::string_view ATabela, const TEnderecoIP& AEndereco);

/// From a text like /proc/net/route.
/// Whether AEndereco belongs to a network that is reached without a gateway.
bool EstahNoEnlace(std::string_view ATabela, const TEnderecoIP& AEndereco);
/// The interface of the default route of the lowest metric; empty when there is none.
std::string BuscarInterfacePadrao(std::string_view ATabela);

}  // namespace OryUtils::Plataforma
