#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Excecoes.hpp"
#include "oryutils/runtime/Objeto.hpp"

#include <concepts>
#include <memory>
#include <utility>
#include <vector>

namespace OryUtils {

/// Something that may have an owner and may own others: a tree. Whoever frees the owner frees all that it owns, the
/// newest first. A component without an owner belongs to whoever made it. Belongs to one thread.
/// Example:
///   TComponente tela;
///   auto& eventos = tela.Criar<TConverteMetodoEvento>();  // goes with tela
class ORY_API TComponente : public TObjeto {
public:
    TComponente() = default;
    /// Frees what it owns; leaves its owner, if it still has one.
    ~TComponente() override;
    TComponente(const TComponente&) = delete;
    TComponente& operator=(const TComponente&) = delete;

    /// A new T, owned by this one.
    template <std::derived_from<TComponente> T, typename... TArgs>
    T& Criar(TArgs&&... AArgs) {
        auto componente = std::make_unique<T>(std::forward<TArgs>(AArgs)...);
        T& referencia = *componente;
        Inserir(std::move(componente));
        return referencia;
    }
    /// Takes over AComponente. Raises Exception when there is none, or when it is this one's own owner, of whatever
    /// degree; then nothing has changed hands: the argument still holds it.
    void Inserir(std::unique_ptr<TComponente>&& AComponente);
    /// Gives AComponente back to the caller. Raises Exception when this one does not own it.
    std::unique_ptr<TComponente> Retirar(const TComponente& AComponente);

    /// Null when nobody owns it.
    TComponente* GetOwner() const noexcept { return FOwner; }
    int GetComponentCount() const noexcept { return static_cast<int>(FComponentes.size()); }
    /// The owned ones in the order in which they came, from 0. Raises EListError when AIndice is none of them.
    TComponente& GetComponent(int AIndice) const;

protected:
    /// Frees what it owns. For the destructor of a class whose components use its fields.
    void LiberarComponentes() noexcept;

private:
    std::unique_ptr<TComponente> Soltar(const TComponente& AComponente) noexcept;

    TComponente* FOwner = nullptr;
    std::vector<std::unique_ptr<TComponente>> FComponentes{};
};

}  // namespace OryUtils
