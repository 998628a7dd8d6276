#pragma once

#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"

namespace OryUtils::Interno {

/// A window class of this module, registered while it lives: a library that is unloaded leaves none behind.
class TClasseDeJanela {
public:
    TClasseDeJanela(const wchar_t* ANome, WNDPROC AProcedimento) : FNome(ANome) {
        WNDCLASSEXW classe{};
        classe.cbSize = sizeof classe;
        classe.style = CS_DBLCLKS;
        classe.lpfnWndProc = AProcedimento;
        classe.hInstance = BuscarModulo();
        classe.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));
        classe.hbrBackground = reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1));
        classe.lpszClassName = ANome;
        ::RegisterClassExW(&classe);
    }
    ~TClasseDeJanela() { ::UnregisterClassW(FNome, BuscarModulo()); }
    TClasseDeJanela(const TClasseDeJanela&) = delete;
    TClasseDeJanela& operator=(const TClasseDeJanela&) = delete;

    const wchar_t* GetNome() const noexcept { return FNome; }

private:
    const wchar_t* FNome;
};

}  // namespace OryUtils::Interno
