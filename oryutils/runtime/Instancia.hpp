#pragma once

#include <memory>
#include <utility>

namespace OryUtils {

/// The global instance of a unit (GOryUtilsStrings, ...). Created at the library's start unless a host has put its own
/// there; freed at its stop. It has no destructor: the order in which globals end plays no part.
template <typename T>
class TInstanciaGlobal {
public:
    constexpr TInstanciaGlobal() = default;
    TInstanciaGlobal(const TInstanciaGlobal&) = delete;
    TInstanciaGlobal& operator=(const TInstanciaGlobal&) = delete;

    T* Get() const noexcept { return FInstancia; }
    T* operator->() const noexcept { return FInstancia; }
    T& operator*() const noexcept { return *FInstancia; }
    explicit operator bool() const noexcept { return FInstancia != nullptr; }

    /// Creates the instance when there is none.
    void Criar() {
        if (!FInstancia) FInstancia = std::make_unique<T>().release();
    }
    /// Puts AInstancia in the place of the present one, which is freed.
    void Assumir(std::unique_ptr<T> AInstancia) {
        Liberar();
        FInstancia = AInstancia.release();
    }
    void Liberar() noexcept { std::unique_ptr<T>(std::exchange(FInstancia, nullptr)).reset(); }

private:
    T* FInstancia = nullptr;
};

}  // namespace OryUtils
