#include "oryutils/platform/Caminho.hpp"
#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/system/interno/ComandosServico.hpp"
#include "oryutils/system/interno/Servicos.hpp"

namespace OryUtils::Interno {
namespace {

/// Runs AComando and judges what it prints; AInicio begins the message of a failure.
TResultStatus Configurar(const TExecutorDeComando& AExecutor, std::u16string_view AComando,
                         std::u16string_view AInicio) {
    const std::u16string saida = BuscarTextoDoComando(AExecutor, AComando);
    if (!SaidaIndicaFalha(saida)) return {};
    return {false, MontarMensagemFalha(AInicio, saida)};
}

}  // namespace

void ExecutarComandoDoSistema(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida) {
    const std::u16string_view comando = ALinhaDeComando.substr(0, ALinhaDeComando.find(u' '));
    if (Interno::ExisteComando(comando))
        ExecutorDoSistema()(ALinhaDeComando, ASaida);
    else
        ASaida.push_back(PreencherModelo(u"Erro: o comando %s não foi encontrado.", {comando}));
}

TResultStatus ConfigurouAcaoPadraoRecuperacaoServico(const TExecutorDeComando& AExecutor,
                                                     std::u16string_view AServico) {
    return Configurar(
        AExecutor, MontarComandoRecuperacao(AServico),
        PreencherModelo(u"Não foi possível configurar a ação padrão de recuperação do serviço << %s >>.\r\n\r\n",
                        {AServico}));
}

TResultStatus ConfigurouDependenciaServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico,
                                           std::u16string_view ADependencia) {
    return Configurar(AExecutor, MontarComandoDependencia(AServico, ADependencia),
                      PreencherModelo(u"Não foi possível configurar o serviço: << %s >>\r\n\r\ncomo dependência do "
                                      u"serviço: << %s >>\r\n\r\n\r\n",
                                      {ADependencia, AServico}));
}

TResultStatus ConfigurouUsuarioLogonServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico,
                                            std::u16string_view AUsuario, std::u16string_view ASenha) {
    return Configurar(
        AExecutor, MontarComandoLogon(AServico, AUsuario, ASenha),
        PreencherModelo(u"Não foi possível configurar o usuário de logon para o serviço: << %s >>.\r\n\r\n\r\n",
                        {AServico}));
}

TResultStatus ConfigurouDadosAdicionaisServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico,
                                               const std::vector<std::u16string>& AConfiguracoes) {
    return Configurar(
        AExecutor, MontarComandoConfiguracao(AServico, AConfiguracoes),
        PreencherModelo(u"Não foi possível configurar os dados adicionais do serviço << %s >>.\r\n\r\n", {AServico}));
}

}  // namespace OryUtils::Interno
