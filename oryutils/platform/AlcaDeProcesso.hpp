#pragma once

#include "oryutils/OryExport.hpp"

#include <cstdint>
#include <utility>

namespace OryUtils {

/// A handle of a process, closed when it goes: a HANDLE on Windows, a file descriptor of the process (pidfd) on Linux.
/// 0 stands for no handle on both. A copy is a handle of its own for the same process.
class ORY_API TAlcaDeProcesso {
public:
    TAlcaDeProcesso() = default;
    /// Takes over AAlca, which is closed from here on by this object alone.
    explicit TAlcaDeProcesso(std::intptr_t AAlca) noexcept : FAlca(AAlca) {}
    TAlcaDeProcesso(const TAlcaDeProcesso& AOutra) : FAlca(Duplicar(AOutra.FAlca)) {}
    TAlcaDeProcesso(TAlcaDeProcesso&& AOutra) noexcept : FAlca(std::exchange(AOutra.FAlca, 0)) {}
    TAlcaDeProcesso& operator=(TAlcaDeProcesso AOutra) noexcept {
        std::swap(FAlca, AOutra.FAlca);
        return *this;
    }
    ~TAlcaDeProcesso() { Fechar(FAlca); }

    std::intptr_t Get() const noexcept { return FAlca; }
    explicit operator bool() const noexcept { return FAlca != 0; }
    /// Gives the handle away: who calls closes it, or leaves it open.
    std::intptr_t Soltar() noexcept { return std::exchange(FAlca, 0); }

private:
    static std::intptr_t Duplicar(std::intptr_t AAlca) noexcept;
    static void Fechar(std::intptr_t AAlca) noexcept;

    std::intptr_t FAlca = 0;
};

}  // namespace OryUtils
