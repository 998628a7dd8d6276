#pragma once

#include "oryutils/platform/windows/Windows.hpp"

#include <exception>
#include <vector>

namespace OryUtils::Interno {

class TJanelaWin32;

/// The message loop that all shown forms share.
class TLacoDeMensagens {
public:
    /// One message: to the form that it belongs to, with the keyboard of dialogs, or to any other window.
    void Despachar(MSG& AMensagem);
    /// Some of the messages that wait; what is left comes with the next call. Raises what a timer's action
    /// raised meanwhile.
    void Bombear();

    /// The forms shown, innermost last.
    std::vector<TJanelaWin32*> Janelas;
    /// Those of Janelas that run without a loop of their own.
    std::vector<TJanelaWin32*> Exibidas;
    /// One place for each running loop, innermost last: it keeps the exception of an action outside of the loop's form.
    std::vector<std::exception_ptr*> Destinos;
    /// Cursor of all forms; null for each window's own.
    HCURSOR Cursor = nullptr;
    /// New forms stay in front of the windows of all programs.
    bool NaFrente = false;
};

/// Puts a value on a stack while it lives.
template <typename T>
class TNaPilha {
public:
    TNaPilha(std::vector<T>& APilha, T AValor) : FPilha(APilha) { FPilha.push_back(AValor); }
    ~TNaPilha() { FPilha.pop_back(); }
    TNaPilha(const TNaPilha&) = delete;
    TNaPilha& operator=(const TNaPilha&) = delete;

private:
    std::vector<T>& FPilha;
};

/// The module that this code is part of: owner of its window classes.
HINSTANCE BuscarModulo() noexcept;

}  // namespace OryUtils::Interno
