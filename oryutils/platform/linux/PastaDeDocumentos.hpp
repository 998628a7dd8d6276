#pragma once

#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// The value of XDG_DOCUMENTS_DIR in a text like user-dirs.dirs, with $HOME replaced by AInicio; empty when there is
/// none that is a full path. The last one holds, as in the shell script that the file is.
std::string LerPastaDeDocumentos(std::string_view ATexto, std::string_view AInicio);

}  // namespace OryUtils::Interno
