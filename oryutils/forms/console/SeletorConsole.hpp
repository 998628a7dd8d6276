#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// Shows a question and gives the answer, without the blanks around it; none at the end of the input.
using TPerguntaNoConsole = std::function<std::optional<std::u16string>(std::u16string_view)>;

/// The pickers of TToolkit as a conversation, see TToolkitConsole. What is wrong with an answer is told before the
/// question comes again.
std::vector<std::u16string> PerguntarCaminhos(const TPedidoDeCaminho& APedido, const TPerguntaNoConsole& APerguntar);

}  // namespace OryUtils::Interno
