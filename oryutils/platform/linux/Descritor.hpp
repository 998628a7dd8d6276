#pragma once

#include <unistd.h>
#include <utility>

namespace OryUtils::Interno {

/// A file descriptor, closed when it goes. What failed to open is one too, and errno keeps the reason.
class TDescritor {
public:
    explicit TDescritor(int ANumero) noexcept : FNumero(ANumero) {}
    TDescritor(TDescritor&& AOutro) noexcept : FNumero(AOutro.Soltar()) {}
    TDescritor& operator=(TDescritor&& AOutro) noexcept {
        std::swap(FNumero, AOutro.FNumero);
        return *this;
    }
    ~TDescritor() {
        if (!Falhou()) ::close(FNumero);
    }

    int Get() const noexcept { return FNumero; }
    bool Falhou() const noexcept { return FNumero < 0; }
    /// Gives it away: who calls closes it.
    int Soltar() noexcept { return std::exchange(FNumero, -1); }

private:
    int FNumero;
};

}  // namespace OryUtils::Interno
