#include "resistencia/Recursos.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Testes {

TRecursos BuscarRecursos() {
    DWORD alcas = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &alcas);
    return {{"handles", static_cast<long>(alcas)},
            {"GDI objects", static_cast<long>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))},
            {"USER objects", static_cast<long>(::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS))}};
}

long ContarFilhosMortos() { return 0; }

}  // namespace OryUtils::Testes
