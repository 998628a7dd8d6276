#pragma once

#include <string>

namespace OryUtils::Interno {

/// The file of the program that runs, with its folder; empty when the system does not tell. Never throws.
std::u16string BuscarArquivoExecutavel();

}  // namespace OryUtils::Interno
