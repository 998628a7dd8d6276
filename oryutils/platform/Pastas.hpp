#pragma once

#include <string_view>

namespace OryUtils::Interno {

/// True when APasta names a folder that exists and may be looked at. Never throws; false for a file, an empty name and
/// a name with the character of code 0.
bool ExistePasta(std::u16string_view APasta);

/// Creates the folder, with those above it that are missing; true when it is there at the end. Never throws. A path may
/// pass 260 characters; a name longer than the system allows answers false.
bool CriarPasta(std::u16string_view APasta);

/// What parts the folders of a path: "\" on Windows, "/" on Linux.
char16_t BuscarSeparadorDePastas() noexcept;

/// True when the system forbids ACaractere in the name of a file. (Windows) < > : " / \ | ? * and the codes below 32.
/// (Linux) / and code 0.
bool EhProibidoEmNomeDeArquivo(char16_t ACaractere) noexcept;

}  // namespace OryUtils::Interno
