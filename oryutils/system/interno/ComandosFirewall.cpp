#include "oryutils/system/interno/ComandosFirewall.hpp"

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/system/interno/ComandosServico.hpp"
#include "oryutils/text/OryUtilsStrings.hpp"

#include <array>

namespace OryUtils::Interno {
namespace {

// By dialect: the older one, then the advanced one.
constexpr std::array<std::u16string_view, 2> CLiberarPorta{
    u"netsh firewall set portopening %s %d \"%s\"",
    u"netsh advfirewall firewall add rule name=\"%s\" dir=in action=allow protocol=%s localport=%d",
};
constexpr std::array<std::u16string_view, 2> CExcluirPorta{
    u"netsh firewall delete portopening protocol=%s port=%d",
    u"netsh advfirewall firewall delete rule name=all protocol=%s localport=%d",
};
constexpr std::array<std::u16string_view, 2> CLiberarPrograma{
    u"netsh firewall set allowedprogram \"%s\" \"%s\" ENABLE",
    u"netsh advfirewall firewall add rule name=\"%s\" dir=in action=allow program=\"%s\" enable=yes",
};
constexpr std::array<std::u16string_view, 2> CExcluirPrograma{
    u"netsh firewall delete allowedprogram \"%s\"",
    u"netsh advfirewall firewall delete rule name=\"%s\" program=\"%s\"",
};

std::u16string_view NomeDe(TTipoProtocoloPortaComunicacao AProtocolo) {
    return CVetorTipoProtocoloPortaComunicacao[AProtocolo == tpTCP ? tpTCP : tpUDP];
}

}  // namespace

std::u16string MontarLiberacaoDePorta(TDialetoFirewall ADialeto, TTipoProtocoloPortaComunicacao AProtocolo, int APorta,
                                      std::u16string_view ANome) {
    const std::u16string nome = EscaparEntreAspas(ANome);
    const std::u16string porta = InteiroParaTexto(APorta);
    if (ADialeto == dfAvancado) return PreencherModelo(CLiberarPorta[ADialeto], {nome, NomeDe(AProtocolo), porta});
    return PreencherModelo(CLiberarPorta[ADialeto], {NomeDe(AProtocolo), porta, nome});
}

std::u16string MontarExclusaoDePorta(TDialetoFirewall ADialeto, TTipoProtocoloPortaComunicacao AProtocolo, int APorta) {
    return PreencherModelo(CExcluirPorta[ADialeto], {NomeDe(AProtocolo), InteiroParaTexto(APorta)});
}

std::u16string MontarLiberacaoDePrograma(TDialetoFirewall ADialeto, std::u16string_view APrograma,
                                         std::u16string_view ANome) {
    const std::u16string nome = EscaparEntreAspas(ANome);
    const std::u16string programa = EscaparEntreAspas(APrograma);
    if (ADialeto == dfAvancado) return PreencherModelo(CLiberarPrograma[ADialeto], {nome, programa});
    return PreencherModelo(CLiberarPrograma[ADialeto], {programa, nome});
}

std::u16string MontarExclusaoDePrograma(TDialetoFirewall ADialeto, std::u16string_view APrograma,
                                        std::u16string_view ANome) {
    const std::u16string nome = EscaparEntreAspas(ANome);
    const std::u16string programa = EscaparEntreAspas(APrograma);
    if (ADialeto == dfAvancado) return PreencherModelo(CExcluirPrograma[ADialeto], {nome, programa});
    return PreencherModelo(CExcluirPrograma[ADialeto], {programa});
}

bool SaidaConfirma(std::u16string_view ASaida) {
    return TOryUtilsStrings::TextoContemItemVetor(ASaida, {u"ok"}, false);
}

}  // namespace OryUtils::Interno
