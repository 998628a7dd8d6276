#pragma once

#include "oryutils/files/interno/LinhasDoLog.hpp"

#include <string_view>

namespace OryUtils {

/// What became of reading an existing log.
enum TCargaDoLog : int {
    cgLida,
    cgSemArquivo,  ///< no file of that name
    cgIlegivel,    ///< it is there and cannot be read now: no right, or another program has it open
};

/// Appends the lines of AArquivo to ALinhas, by the encoding of ALinhas. Unless the result is cgLida, ALinhas holds an
/// unknown part of them.
TCargaDoLog CarregarLinhas(std::u16string_view AArquivo, TLinhasDoLog& ALinhas);

}  // namespace OryUtils
