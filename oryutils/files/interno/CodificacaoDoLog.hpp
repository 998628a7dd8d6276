#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// Appends ATexto to ADestino in the encoding. True when the encoding has all of it: its bytes give the text again.
bool AcrescentarCodificado(std::string& ADestino, std::u16string_view ATexto, TCodificacaoLog ACodificacao);
/// Appends the text of ABytes. True when the encoding gives those bytes for it, and no others.
bool AcrescentarDecodificado(std::u16string& ADestino, std::string_view ABytes, TCodificacaoLog ACodificacao);

}  // namespace OryUtils
