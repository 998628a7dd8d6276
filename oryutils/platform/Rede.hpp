#pragma once

#include "oryutils/readers/TabelasDeRede.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// An IPv4 address in one of the forms that inet_addr reads; none for anything else and for 255.255.255.255.
std::optional<TEnderecoIP> LerEnderecoIP(std::u16string_view ATexto);

/// The first address of the machine's own host name. (Linux) Where the name has no address, or one of the loopback, as
/// Debian writes it in its hosts file, the address of the interface of the default route, else of the first interface
/// that is up. None when there is none at all, with the system's words in AErro.
std::optional<TEnderecoIP> BuscarEnderecoDestaMaquina(std::u16string& AErro);

/// The first address of a host name (gethostbyname); the empty name is this machine. None when it has none.
std::optional<TEnderecoIP> ResolverNome(std::u16string_view ANome);

/// The host name of an address (gethostbyaddr); empty when it has none.
std::u16string BuscarNomeDoEndereco(const TEnderecoIP& AEndereco);

/// The hardware address behind an IP address of the local network or of this machine. (Windows) SendARP. (Linux) The
/// own interface, else the kernel's neighbour table; an address of a directly connected network that is not in it yet
/// is sent an empty datagram, which makes the kernel ask for it, and waited for up to a second.
std::optional<TEnderecoMac> PerguntarEnderecoMac(const TEnderecoIP& AEndereco);

/// The hardware addresses of the adapters of AEndereco: the own ones that have this address, else what the neighbour
/// table knows of it now. Without AEndereco, those of all own adapters.
std::vector<TEnderecoMac> ListarEnderecosMac(const std::optional<TEnderecoIP>& AEndereco);

}  // namespace OryUtils::Interno
