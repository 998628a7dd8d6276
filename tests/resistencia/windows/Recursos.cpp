#include "resistencia/Recursos.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>
#include <array>
#include <psapi.h>

namespace OryUtils::Testes {
namespace {

BOOL CALLBACK Contar(HWND, LPARAM ATotal) {
    ++*reinterpret_cast<long*>(ATotal);
    return TRUE;
}

/// Windows of this thread, with all their children: counted too, since some systems do not count the handles.
long ContarJanelas() {
    long total = 0;
    const auto comFilhas = [](HWND AJanela, LPARAM ATotal) -> BOOL {
        ::EnumChildWindows(AJanela, Contar, ATotal);
        return Contar(AJanela, ATotal);
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), comFilhas, reinterpret_cast<LPARAM>(&total));
    return total;
}

/// Kernel handles, one by one where the system does not count them.
long ContarAlcas() {
    constexpr std::uintptr_t CUltima = 8'192;
    DWORD alcas = 0;
    if (::GetProcessHandleCount(::GetCurrentProcess(), &alcas) && alcas > 0) return static_cast<long>(alcas);
    for (std::uintptr_t valor = 4; valor <= CUltima; valor += 4) {
        DWORD marcas = 0;
        if (::GetHandleInformation(reinterpret_cast<HANDLE>(valor), &marcas)) ++alcas;
    }
    return static_cast<long>(alcas);
}

/// The highest number of some new menus: they share their numbers with windows, icons and cursors, and what was freed
/// is used again.
long MaiorObjetoDeUsuario() {
    std::array<HMENU, 64> menus{};
    std::ranges::generate(menus, ::CreateMenu);
    long maior = 0;
    for (const HMENU menu : menus) {
        maior = std::max(maior, static_cast<long>(LOWORD(reinterpret_cast<std::uintptr_t>(menu))));
        ::DestroyMenu(menu);
    }
    return maior;
}

/// The highest number of some new brushes, likewise: which of the freed numbers comes first depends on what was painted
/// last.
long MaiorObjetoGrafico() {
    std::array<HBRUSH, 64> pinceis{};
    std::ranges::generate(pinceis, [] { return ::CreateSolidBrush(RGB(1, 2, 3)); });
    long maior = 0;
    for (const HBRUSH pincel : pinceis) {
        maior = std::max(maior, static_cast<long>(LOWORD(reinterpret_cast<std::uintptr_t>(pincel))));
        ::DeleteObject(pincel);
    }
    return maior;
}

}  // namespace

TRecursos BuscarRecursos() {
    return {{"handles", ContarAlcas()},
            {"GDI objects", static_cast<long>(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS))},
            {"USER objects", static_cast<long>(::GetGuiResources(::GetCurrentProcess(), GR_USEROBJECTS))},
            {"windows", ContarJanelas()},
            {CNumeroDeTodos, MaiorObjetoDeUsuario()},
            {"highest graphic handle", MaiorObjetoGrafico()}};
}

long BuscarMemoriaKiB() {
    // Systems differ in which of the two they fill.
    PROCESS_MEMORY_COUNTERS_EX memoria{};
    ::GetProcessMemoryInfo(::GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&memoria), sizeof memoria);
    return static_cast<long>(std::max(memoria.PagefileUsage, memoria.PrivateUsage) / 1024);
}

long ContarFilhosMortos() { return 0; }

}  // namespace OryUtils::Testes
