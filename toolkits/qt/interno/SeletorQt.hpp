#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <string>
#include <vector>

namespace OryUtils {

/// The pickers of TToolkit: Qt's own dialog, in Portuguese whatever the machine speaks, in which nothing can be
/// created, renamed or deleted. The desktop's dialog would bring its own language and commands.
std::vector<std::u16string> EscolherCaminhosQt(const TPedidoDeCaminho& APedido);

}  // namespace OryUtils
