#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/Firewall.hpp"
#include "oryutils/system/interno/Servicos.hpp"

namespace OryUtils {
namespace {

Sistema::TDialetoFirewall BuscarDialeto() { return Sistema::DialetoDe(TOryUtilsSistema::BuscarVersaoWindows()); }

}  // namespace

TResultStatus TOryUtilsSistema::LiberouPortaFirewallWindows(TTipoProtocoloPortaComunicacao AProtocolo, int APorta,
                                                            std::u16string_view ANomeRegra) {
    return Sistema::LiberouPorta(Sistema::ExecutarComandoDoSistema, BuscarDialeto(), AProtocolo, APorta, ANomeRegra);
}

TResultStatus TOryUtilsSistema::ExcluiuPortaFirewallWindows(TTipoProtocoloPortaComunicacao AProtocolo, int APorta) {
    return Sistema::ExcluiuPorta(Sistema::ExecutarComandoDoSistema, BuscarDialeto(), AProtocolo, APorta);
}

TResultStatus TOryUtilsSistema::LiberouProgramaFirewallWindows(std::u16string_view APrograma,
                                                               std::u16string_view ANomeRegra) {
    return Sistema::LiberouPrograma(Sistema::ExecutarComandoDoSistema, BuscarDialeto(), APrograma, ANomeRegra);
}

TResultStatus TOryUtilsSistema::ExcluiuProgramaFirewallWindows(std::u16string_view APrograma,
                                                               std::u16string_view ANomeRegra) {
    return Sistema::ExcluiuPrograma(Sistema::ExecutarComandoDoSistema, BuscarDialeto(), APrograma, ANomeRegra);
}

}  // namespace OryUtils
