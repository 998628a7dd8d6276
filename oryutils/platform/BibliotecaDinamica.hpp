#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace OryUtils::Interno {

/// A shared library loaded at run time. Loads of one file are counted by the system: the library goes with the last.
class TBibliotecaDinamica {
public:
    TBibliotecaDinamica() = default;
    /// Loads ANome: a full path, or a bare name looked up where the system looks (never in the current folder).
    /// Check with operator bool: a library that is missing or broken is no exception.
    explicit TBibliotecaDinamica(std::u16string_view ANome);
    ~TBibliotecaDinamica() { Descarregar(); }
    TBibliotecaDinamica(TBibliotecaDinamica&& AOutra) noexcept : FAlca(std::exchange(AOutra.FAlca, nullptr)) {}
    TBibliotecaDinamica& operator=(TBibliotecaDinamica&& AOutra) noexcept {
        std::swap(FAlca, AOutra.FAlca);
        return *this;
    }

    explicit operator bool() const noexcept { return FAlca != nullptr; }
    /// The function of that exported name; null when there is none.
    template <typename TFuncao>
    TFuncao* Buscar(const char* ANome) const noexcept {
        return reinterpret_cast<TFuncao*>(BuscarEndereco(ANome));
    }
    void Descarregar() noexcept;
    /// Leaves the library loaded until the process ends.
    void Soltar() noexcept { FAlca = nullptr; }

private:
    using TEndereco = void (*)();
    TEndereco BuscarEndereco(const char* ANome) const noexcept;

    void* FAlca = nullptr;
};

/// True when a library of that name is in the process now, whoever loaded it.
bool EstahCarregada(std::u16string_view ANome);

}  // namespace OryUtils::Interno
