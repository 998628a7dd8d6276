#pragma once

#include "oryutils/forms/win32/interno/LacoDeMensagens.hpp"

#include <cstdint>
#include <functional>
#include <map>

namespace OryUtils::Interno {

/// Timers of the thread of the interface, on an invisible window of their own: they tick with any message loop.
class TTemporizadores {
public:
    explicit TTemporizadores(TLacoDeMensagens& ALaco) : FLaco(ALaco) {}
    ~TTemporizadores();
    TTemporizadores(const TTemporizadores&) = delete;
    TTemporizadores& operator=(const TTemporizadores&) = delete;

    std::uintptr_t Ligar(int AMilissegundos, std::function<void()> AAcao);
    void Desligar(std::uintptr_t ATemporizador);
    /// The invisible window, created when first asked for.
    HWND GetJanela();

private:
    static LRESULT CALLBACK Procedimento(HWND AJanela, UINT AMensagem, WPARAM AW, LPARAM AL);
    void Tocar(std::uintptr_t ATemporizador);

    TLacoDeMensagens& FLaco;
    HWND FJanela = nullptr;
    std::uintptr_t FUltimo = 0;
    std::map<std::uintptr_t, std::function<void()>> FAcoes;
};

}  // namespace OryUtils::Interno
