#pragma once

#include "oryutils/forms/Toolkit.hpp"

#include <string>
#include <vector>

namespace OryUtils {

/// What a picker is asked for. All of it is input, and all of it may stay empty.
struct TOryUtilsDialogsSelecaoIOP {
    std::u16string Titulo{};        ///< empty: the usual one
    std::u16string PastaInicial{};  ///< where the picker opens; empty: where the system thinks best
    /// The user chooses one of these, the first at first; empty shows every file. {{u"Textos", u"*.txt;*.csv"}}
    std::vector<TFiltroArquivo> Filtros{};
    /// Of EscolherArquivoParaSalvar: the name offered, without a folder. What no file name may have becomes "_".
    std::u16string NomeSugerido{};
    /// Of EscolherArquivoParaSalvar: put behind a name that has no extension; "txt", without the point.
    std::u16string ExtensaoPadrao{};

    void Assign(const TOryUtilsDialogsSelecaoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TOryUtilsDialogsSelecaoIOP&) const = default;
};

}  // namespace OryUtils
