#pragma once

#include "oryutils/runtime/Modelo.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/system/UnOryUtilsSystemTypes.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

namespace OryUtils::Interno {

inline constexpr int CMenorCotaGDI = 256;
inline constexpr int CMaiorCotaGDI = 65536;
inline constexpr int CMaiorCotaGDIWindows2000 = 16384;

/// The check of TOryUtilsRegistro::ValidouValorLimiteCotaObjetosGDI on a given version of Windows.
inline OryTypes::TResultStatus ValidarCotaObjetosGDI(int AValor, TVersaoWindows AVersao) {
    const int maior = AVersao == vwWin2000 ? CMaiorCotaGDIWindows2000 : CMaiorCotaGDI;
    if (AValor >= CMenorCotaGDI && AValor <= maior) return {};
    return {.Status = false,
            .Mensagem = PreencherModelo(u"Valor cota objetos GDI inválido.\r\nValores permitidos entre %d e %d.",
                                        {InteiroParaTexto(CMenorCotaGDI), InteiroParaTexto(maior)})};
}

}  // namespace OryUtils::Interno
