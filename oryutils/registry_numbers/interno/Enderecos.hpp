#pragma once

#include <string_view>

/// The rules of e-mail and IPv4 addresses.
namespace OryUtils::Interno {

/// Why an e-mail address is refused.
enum TRecusaEmail : int {
    reNenhuma,
    reSemArroba,
    reSemPonto,
    reInicio,        // starts with "@", ".", "_" or "-"
    reFim,           // ends with "@" or "."
    reEspaco,        // a space in it
    reVizinho,       // the first ".", "-", "_" or "com" next to the "@"
    reCaractere,     // one of CCarateresEspeciais
    rePontoDobrado,  // two full stops in a row
    reArrobaDobrada,
};

/// An empty or blank address is valid.
TRecusaEmail ConferirEmail(std::u16string_view AEndereco) noexcept;

/// Why an IPv4 address is refused.
enum TRecusaIp : int { riNenhuma, riCaractere, riPartes, riParte, riValor };

/// An empty or blank address is valid.
TRecusaIp ConferirEnderecoIp(std::u16string_view AEndereco) noexcept;

}  // namespace OryUtils::Interno
