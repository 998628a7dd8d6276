#pragma once

#include <optional>
#include <string>

namespace OryUtils::Interno {

/// Folders as the system gives them, without a final separator unless they are a root; empty when it does not tell.
/// The user's documents. (Linux) The documents folder of user-dirs.dirs, else "Documents" in the home folder.
std::optional<std::u16string> BuscarPastaDeDocumentos();
/// (Linux) TMPDIR where it names a full path, else "/tmp".
std::u16string BuscarPastaTemporaria();
/// The system's own libraries. (Linux) "/usr/lib".
std::u16string BuscarPastaDoSistema();
/// The drive on which the system is installed: "C:". (Linux) "/", which the disk operations accept as a drive.
std::u16string BuscarUnidadeDoSistema();
/// Where programs are installed when no setting says otherwise. Empty: Windows always has the setting. (Linux) "/opt".
std::u16string BuscarPastaDeProgramasPadrao();

}  // namespace OryUtils::Interno
