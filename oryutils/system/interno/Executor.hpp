#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// Runs a command line and appends what it prints to the list, as TOryUtilsSistema::ExecutarComandoComRetorno does.
/// Operations that work through commands take one: the public forms give them ExecutorDoSistema(), tests one that
/// records the command texts and answers as told.
using TExecutorDeComando =
    std::function<void(std::u16string_view ALinhaDeComando, std::vector<std::u16string>& ASaida)>;

/// The real one.
const TExecutorDeComando& ExecutorDoSistema();

/// The lines joined with line breaks (CR LF) between them: the text of a list.
std::u16string JuntarLinhas(const std::vector<std::u16string>& ALinhas);
/// Runs ALinhaDeComando through AExecutor and answers the text of its list.
std::u16string BuscarTextoDoComando(const TExecutorDeComando& AExecutor, std::u16string_view ALinhaDeComando);

}  // namespace OryUtils::Interno
