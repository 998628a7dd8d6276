#pragma once

#include "oryutils/forms/Toolkit.hpp"

namespace OryUtils {

/// Version of the form model. The library hands its forms to a Qt toolkit that was loaded at run time and that has its
/// own copy of the library's code, so both must agree on the layout of every class that crosses between them. Count the
/// version up in the same commit that
///   - adds, removes or moves a data member or a virtual function of a class in forms/Controles.hpp, forms/Formulario.hpp
///     or forms/Toolkit.hpp, or of a base of theirs in runtime (TObjeto, TComponente, TEvento);
///   - changes the ordinals of an enumeration there, or what one of them means;
///   - changes the layout of Exception or of a descendant, since exceptions cross, too.
/// A toolkit of another version is refused, and dialogs fall back to the console.
inline constexpr int CVersaoDoModelo = 8;

/// Name and type of the function that the Qt library exports.
inline constexpr const char* CFabricaQt = "OryUtilsToolkitQt";
using TFabricaQt = TToolkit*(int AVersao) noexcept;

}  // namespace OryUtils
