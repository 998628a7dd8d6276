#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/Instancia.hpp"

namespace OryUtils {

/// Helpers for classes and their methods.
class ORY_API TOryUtilsClasses {
public:
    /// True when both events, of whatever kinds, have the same code and the same object. Two empty ones are equal.
    /// A method bound in the library and the same one bound in a program may have different code: compare events that
    /// one of them made.
    /// Example:  ComparouMetodos(botao.OnClick, TEventoNotificacao::De<&TTela::AoClicar>(tela))
    static bool ComparouMetodos(const TMetodo& A, const TMetodo& B) noexcept;
};

extern ORY_API TInstanciaGlobal<TOryUtilsClasses> GOryUtilsClasses;

/// TOryUtilsClasses::ComparouMetodos.
inline bool ComparouMetodos(const TMetodo& A, const TMetodo& B) noexcept {
    return TOryUtilsClasses::ComparouMetodos(A, B);
}

}  // namespace OryUtils
