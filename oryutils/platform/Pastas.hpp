#pragma once

#include "oryutils/OryExport.hpp"

#include <string_view>

namespace OryUtils::Plataforma {

/// True when APasta names a folder that exists and may be looked at. Never throws; false for a file, an empty name and
/// a name with the character of code 0.
ORY_API bool ExistePasta(std::u16string_view APasta);

/// True when the system forbids ACaractere in the name of a file. (Windows) < > : " / \ | ? * and the codes below 32.
/// (Linux) / and code 0.
ORY_API bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept;

}  // namespace OryUtils::Plataforma
