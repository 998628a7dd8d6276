#pragma once

#include "oryutils/system/UnOryUtilsSystemTypes.hpp"

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Older systems know only the first words of the firewall.
enum TDialetoFirewall : int { dfAntigo, dfAvancado };
/// The advanced one for Vista and later and for every version without a name of its own, such as 10.
constexpr TDialetoFirewall DialetoDe(TVersaoWindows AVersao) noexcept {
    return AVersao == vwUnknown || AVersao == vwWinVista ? dfAvancado : dfAntigo;
}

std::u16string MontarLiberacaoDePorta(TDialetoFirewall ADialeto, TTipoProtocoloPortaComunicacao AProtocolo, int APorta,
                                      std::u16string_view ANome);
std::u16string MontarExclusaoDePorta(TDialetoFirewall ADialeto, TTipoProtocoloPortaComunicacao AProtocolo, int APorta);
std::u16string MontarLiberacaoDePrograma(TDialetoFirewall ADialeto, std::u16string_view APrograma,
                                         std::u16string_view ANome);
std::u16string MontarExclusaoDePrograma(TDialetoFirewall ADialeto, std::u16string_view APrograma,
                                        std::u16string_view ANome);

/// True when "ok" stands anywhere in what "netsh" printed, in any case.
bool SaidaConfirma(std::u16string_view ASaida);

}  // namespace OryUtils::Interno
