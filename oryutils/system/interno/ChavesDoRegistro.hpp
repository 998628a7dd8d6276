#pragma once

#include <string_view>

// Where the settings of the machine stand in the registry, and what is said when one can not be changed.
namespace OryUtils::Interno {

inline constexpr std::u16string_view CChaveAutoInicio = u"Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr std::u16string_view CChaveAmbiente =
    u"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment";
inline constexpr std::u16string_view CChaveCotaGDI = u"Software\\Microsoft\\Windows NT\\CurrentVersion\\Windows";
inline constexpr std::u16string_view CValorCotaGDI = u"GDIProcessHandleQuota";
inline constexpr std::u16string_view CChaveTimeoutServicos = u"SYSTEM\\CurrentControlSet\\Control";
inline constexpr std::u16string_view CValorTimeoutServicos = u"ServicesPipeTimeout";

inline constexpr std::u16string_view CErroAoAdicionar =
    u"Erro ao adicionar valor no registro do Windows.\r\nChave: %s\r\nValor: %s\r\n\r\nErro ocorrido: \r\n\r\n%s";
inline constexpr std::u16string_view CErroAoExcluirValor =
    u"Erro ao excluir valor do registro do Windows.\r\nChave: %s\r\nValor: %s";
inline constexpr std::u16string_view CErroAoExcluirChave =
    u"Não foi possível excluir a chave/valor << %s >>.\r\nErro ocorrido: \r\n\r\n%s";
// "o acesso à configurações" stays: support searches for the messages as they have always been.
inline constexpr std::u16string_view CErroAoConfigurarAutoInicio =
    u"Não foi possível configurar aplicação para iniciar automaticamente com o Windows.\r\n\r\nAplicação: %s \r\n\r\n"
    u"Erro ocorrido: \r\n\r\n%s.\r\n\r\nEm algumas versões do Windows, o acesso à configurações de registradores "
    u"necessita que a aplicação possua privilégios de administrador.\r\n\r\nExecute a aplicação em modo administrador "
    u"e tente novamente.";
inline constexpr std::u16string_view CErroAoExcluirAutoInicio =
    u"Não foi possível excluir a configuração de auto início da aplicação com o Windows.\r\n\r\nErro ocorrido: "
    u"\r\n\r\n%s.\r\n\r\nEm algumas versões do Windows, o acesso à configurações de registradores necessita que a "
    u"aplicação possua privilégios de administrador.\r\n\r\nExecute a aplicação em modo administrador e tente "
    u"novamente.";
inline constexpr std::u16string_view CErroAoAtualizarTimeout =
    u"Não foi possível atualizar a configuração de timeout de inicialização de serviços ServicesPipeTimeout."
    u"\r\n\r\nEm algumas versões do Windows, o acesso à configurações de registradores necessita que a aplicação "
    u"possua privilégios de administrador.\r\n\r\nExecute a aplicação em modo administrador e tente novamente.";

}  // namespace OryUtils::Interno
