#include "oryutils/system/interno/Firewall.hpp"

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"

namespace OryUtils::Interno {
namespace {

/// Runs AComando; AModelo is the message of a failure, with the places of AAlvo and of what was printed.
TResultStatus Executar(const TExecutorDeComando& AExecutor, std::u16string_view AComando, std::u16string_view AModelo,
                       std::u16string_view AAlvo) {
    const std::u16string saida = BuscarTextoDoComando(AExecutor, AComando);
    if (SaidaConfirma(saida)) return {};
    return {false, PreencherModelo(AModelo, {AAlvo, saida})};
}

}  // namespace

TResultStatus LiberouPorta(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                           TTipoProtocoloPortaComunicacao AProtocolo, int APorta, std::u16string_view ANome) {
    return Executar(AExecutor, MontarLiberacaoDePorta(ADialeto, AProtocolo, APorta, ANome),
                    u"Não foi possível liberar a porta << %d >> no firewall do Windows.\r\n\r\nErro ocorrido: "
                    u"\r\n\r\n%s",
                    InteiroParaTexto(APorta));
}

TResultStatus ExcluiuPorta(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                           TTipoProtocoloPortaComunicacao AProtocolo, int APorta) {
    return Executar(AExecutor, MontarExclusaoDePorta(ADialeto, AProtocolo, APorta),
                    u"Não foi possível excluir a porta << %d >> do firewall do Windows.\r\n\r\nErro ocorrido: "
                    u"\r\n\r\n%s",
                    InteiroParaTexto(APorta));
}

TResultStatus LiberouPrograma(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                              std::u16string_view APrograma, std::u16string_view ANome) {
    return Executar(AExecutor, MontarLiberacaoDePrograma(ADialeto, APrograma, ANome),
                    u"Não foi possível liberar o programa << %s >> no firewall do Windows.\r\n\r\nErro ocorrido: "
                    u"\r\n\r\n%s",
                    APrograma);
}

TResultStatus ExcluiuPrograma(const TExecutorDeComando& AExecutor, TDialetoFirewall ADialeto,
                              std::u16string_view APrograma, std::u16string_view ANome) {
    return Executar(AExecutor, MontarExclusaoDePrograma(ADialeto, APrograma, ANome),
                    u"Não foi possível excluir o programa << %s >> do firewall do Windows.\r\n\r\nErro ocorrido: "
                    u"\r\n\r\n%s",
                    APrograma);
}

}  // namespace OryUtils::Interno
