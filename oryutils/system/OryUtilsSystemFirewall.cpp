#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/Firewall.hpp"
#include "oryutils/system/interno/Servicos.hpp"

namespace OryUtils {
namespace {

Interno::TDialetoFirewall BuscarDialeto() { return Interno::DialetoDe(TOryUtilsSistema::BuscarVersaoWindows()); }

}  // namespace

TResultStatus TOryUtilsSistema::LiberouPortaFirewallWindows(TTipoProtocoloPortaComunicacao AProtocolo, int APorta,
                                                            std::u16string_view ANomeRegra) {
    return Interno::LiberouPorta(Interno::ExecutarComandoDoSistema, BuscarDialeto(), AProtocolo, APorta, ANomeRegra);
}

TResultStatus TOryUtilsSistema::ExcluiuPortaFirewallWindows(TTipoProtocoloPortaComunicacao AProtocolo, int APorta) {
    return Interno::ExcluiuPorta(Interno::ExecutarComandoDoSistema, BuscarDialeto(), AProtocolo, APorta);
}

TResultStatus TOryUtilsSistema::LiberouProgramaFirewallWindows(std::u16string_view APrograma,
                                                               std::u16string_view ANomeRegra) {
    return Interno::LiberouPrograma(Interno::ExecutarComandoDoSistema, BuscarDialeto(), APrograma, ANomeRegra);
}

TResultStatus TOryUtilsSistema::ExcluiuProgramaFirewallWindows(std::u16string_view APrograma,
                                                               std::u16string_view ANomeRegra) {
    return Interno::ExcluiuPrograma(Interno::ExecutarComandoDoSistema, BuscarDialeto(), APrograma, ANomeRegra);
}

}  // namespace OryUtils
