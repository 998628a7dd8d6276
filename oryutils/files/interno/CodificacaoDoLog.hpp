#pragma once

#include "oryutils/files/UnOryUtilsArquivoLogTypes.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace OryUtils {

/// Appends ATexto to ADestino in the encoding. True when all of it is ASCII.
bool AcrescentarCodificado(std::string& ADestino, std::u16string_view ATexto, TCodificacaoLog ACodificacao);

/// The lines of a file. CR, LF and CR LF end a line, in any mixture; the last line needs no end. The mark that some
/// editors put before UTF-8 is no part of the first line.
std::vector<std::u16string> SepararLinhas(std::string_view ABytes, TCodificacaoLog ACodificacao);

}  // namespace OryUtils
