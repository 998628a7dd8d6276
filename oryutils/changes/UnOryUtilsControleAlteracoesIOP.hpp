#pragma once

#include "oryutils/changes/UnOryUtilsControleAlteracoesTypes.hpp"

#include <string>

namespace OryUtils {

/// One registered change of TOryUtilsControleAlteracoes.
struct TDadosControleAlteracaoIOP {
    TMetodoControleAlteracao Metodo{};  // what brings the store up to Versao
    std::u16string Versao{};

    /// Copies every property; both then hold the same closure.
    void Assign(const TDadosControleAlteracaoIOP& AOrigem) { *this = AOrigem; }
    bool operator==(const TDadosControleAlteracaoIOP&) const = default;
};

}  // namespace OryUtils
