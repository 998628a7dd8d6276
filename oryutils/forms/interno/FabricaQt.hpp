#pragma once

#include "oryutils/forms/Toolkit.hpp"

namespace OryUtils {

/// Version of what crosses between the library and a Qt toolkit loaded at run time, each with its own copy of the
/// library's code: TToolkit, TJanela, the form model, the exceptions. Count it up whenever one of them changes.
inline constexpr int CVersaoDoModelo = 2;

/// Name and type of the function that the Qt library exports.
inline constexpr const char* CFabricaQt = "OryUtilsToolkitQt";
using TFabricaQt = TToolkit*(int AVersao) noexcept;

}  // namespace OryUtils
