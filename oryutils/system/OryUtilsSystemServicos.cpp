#include "oryutils/system/OryUtilsSystem.hpp"
#include "oryutils/system/interno/Servicos.hpp"

namespace OryUtils {

using Interno::AbrirGerenciadorServicos;
using Interno::ExecutarComandoDoSistema;

TResultStatus TOryUtilsSistema::InstalouServico(std::u16string_view AServico, std::u16string_view ANomeExibicao,
                                                std::u16string_view AExecutavel) {
    return Interno::InstalouServico(AbrirGerenciadorServicos, AServico, ANomeExibicao, AExecutavel);
}

TResultStatus TOryUtilsSistema::DesinstalouServico(std::u16string_view AServico) {
    return Interno::DesinstalouServico(AbrirGerenciadorServicos, AServico);
}

bool TOryUtilsSistema::IniciarServico(std::u16string_view AMaquina, std::u16string_view AServico) {
    return Interno::IniciarServico(AbrirGerenciadorServicos, AMaquina, AServico);
}

bool TOryUtilsSistema::PararServico(std::u16string_view AMaquina, std::u16string_view AServico, int ATempoLimite) {
    return Interno::PararServico(AbrirGerenciadorServicos, AMaquina, AServico, ATempoLimite);
}

TStatusServicoWindows TOryUtilsSistema::BuscarStatusServico(std::u16string_view AMaquina,
                                                            std::u16string_view AServico) {
    return Interno::BuscarStatusServico(AbrirGerenciadorServicos, AMaquina, AServico);
}

std::uint32_t TOryUtilsSistema::BuscarIDProcessoServico(std::u16string_view AMaquina, std::u16string_view AServico) {
    return Interno::BuscarIDProcessoServico(AbrirGerenciadorServicos, AMaquina, AServico);
}

TResultStatus TOryUtilsSistema::ConfigurouAcaoPadraoRecuperacaoServico(std::u16string_view AServico) {
    return Interno::ConfigurouAcaoPadraoRecuperacaoServico(ExecutarComandoDoSistema, AServico);
}

TResultStatus TOryUtilsSistema::ConfigurouDependenciaServico(std::u16string_view AServico,
                                                             std::u16string_view ADependencia) {
    return Interno::ConfigurouDependenciaServico(ExecutarComandoDoSistema, AServico, ADependencia);
}

TResultStatus TOryUtilsSistema::ConfigurouUsuarioLogonServico(std::u16string_view AServico,
                                                              std::u16string_view AUsuario,
                                                              std::u16string_view ASenha) {
    return Interno::ConfigurouUsuarioLogonServico(ExecutarComandoDoSistema, AServico, AUsuario, ASenha);
}

TResultStatus TOryUtilsSistema::ConfigurouDadosAdicionaisServico(std::u16string_view AServico,
                                                                 const std::vector<std::u16string>& AConfiguracoes) {
    return Interno::ConfigurouDadosAdicionaisServico(ExecutarComandoDoSistema, AServico, AConfiguracoes);
}

}  // namespace OryUtils
