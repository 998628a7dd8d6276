#pragma once

#include "oryutils/platform/Servicos.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/Executor.hpp"

#include <functional>
#include <string_view>

namespace OryUtils::Interno {

/// How the service operations reach a service manager; the public forms give Interno::AbrirGerenciadorServicos.
using TAbrirGerenciador = std::function<std::unique_ptr<Interno::TGerenciadorServicos>(
    std::u16string_view AMaquina, Interno::TAcessoGerenciador AAcesso)>;

TResultStatus InstalouServico(const TAbrirGerenciador& AAbrir, std::u16string_view AServico,
                              std::u16string_view ANomeExibicao, std::u16string_view AExecutavel);
TResultStatus DesinstalouServico(const TAbrirGerenciador& AAbrir, std::u16string_view AServico);
bool IniciarServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina, std::u16string_view AServico);
bool PararServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina, std::u16string_view AServico,
                  int ATempoLimite);
TStatusServicoWindows BuscarStatusServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina,
                                          std::u16string_view AServico);
std::uint32_t BuscarIDProcessoServico(const TAbrirGerenciador& AAbrir, std::u16string_view AMaquina,
                                      std::u16string_view AServico);

/// The real runner of the system's own commands: one that the machine lacks is told of as an error that it printed.
void ExecutarComandoDoSistema(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida);

TResultStatus ConfigurouAcaoPadraoRecuperacaoServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico);
TResultStatus ConfigurouDependenciaServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico,
                                           std::u16string_view ADependencia);
TResultStatus ConfigurouUsuarioLogonServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico,
                                            std::u16string_view AUsuario, std::u16string_view ASenha);
TResultStatus ConfigurouDadosAdicionaisServico(const TExecutorDeComando& AExecutor, std::u16string_view AServico,
                                               const std::vector<std::u16string>& AConfiguracoes);

}  // namespace OryUtils::Interno
