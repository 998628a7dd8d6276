#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// AValor as it stands between the quotes of a command line: quotes in it, and the backslashes before one or at the
/// end, are escaped, so that a value never ends its quotes.
std::u16string EscaparEntreAspas(std::u16string_view AValor);
/// AValor as one argument: as it is, or in quotes where a blank or a quote would cut it.
std::u16string MontarArgumento(std::u16string_view AValor);

std::u16string MontarComandoRecuperacao(std::u16string_view AServico);
std::u16string MontarComandoDependencia(std::u16string_view AServico, std::u16string_view ADependencia);
std::u16string MontarComandoLogon(std::u16string_view AServico, std::u16string_view AConta, std::u16string_view ASenha);
/// AConfiguracoes: settings as "sc config" takes them.
std::u16string MontarComandoConfiguracao(std::u16string_view AServico,
                                         const std::vector<std::u16string>& AConfiguracoes);

/// True when what "sc" printed holds a word of failure, in any case, also inside a longer word.
bool SaidaIndicaFalha(std::u16string_view ASaida);

/// The text of a failure: AInicio, then ASaida between two lines of asterisks, then the advice to try as administrator.
std::u16string MontarMensagemFalha(std::u16string_view AInicio, std::u16string_view ASaida);

}  // namespace OryUtils::Interno
