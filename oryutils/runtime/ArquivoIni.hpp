#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/readers/BuscaIni.hpp"
#include "oryutils/runtime/Excecoes.hpp"

#include <string>
#include <string_view>

namespace OryUtils {

/// The value of AChave in ASecao of the file AArquivo; APadrao when it is not there or the file cannot be read. Never
/// raises.
/// Example:  LerArquivoIni(u"pagina.html", u"VERSAO", u"Numero")  ->  "7.2.0.15"
ORY_API std::u16string LerArquivoIni(std::u16string_view AArquivo, std::u16string_view ASecao,
                                     std::u16string_view AChave, std::u16string_view APadrao = {});

}  // namespace OryUtils
