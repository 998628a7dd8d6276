#pragma once

namespace OryUtils {

/// What TOryUtilsDatas::BuscarDataFormatada writes when no mask is given.
enum TTipoFormatoData : int {
    fdData = 0,
    fdDataHora = 1,
    fdHora = 2,
};

/// The order that a fixed-position date text is converted into.
enum TTipoOrientacaoData : int {
    odDiaMes = 0,
    odMesDia = 1,
};

}  // namespace OryUtils
