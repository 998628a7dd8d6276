#pragma once

#include "oryutils/runtime/Excecoes.hpp"

#include <concepts>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

namespace OryUtils {

/// A closure that is counted: copies are the same closure, with the same captured values, freed with the last copy.
/// Example:
///   int cliques = 0;
///   TMetodoAnonimo<TObjeto*> acao = [&cliques](TObjeto*) { ++cliques; };
template <typename... TArgs>
class TMetodoAnonimo {
public:
    /// Empty.
    TMetodoAnonimo() = default;
    TMetodoAnonimo(std::nullptr_t) {}
    /// Anything that can be called with these arguments; an empty std::function or a null function makes an empty one.
    template <typename T>
    requires(!std::same_as<std::remove_cvref_t<T>, TMetodoAnonimo> && std::invocable<std::decay_t<T>&, TArgs...>)
        // Copies go to the copy constructor: the requirement refuses TMetodoAnonimo itself.
        // NOLINTNEXTLINE(bugprone-forwarding-reference-overload)
        TMetodoAnonimo(T&& AChamavel) {
        std::function<void(TArgs...)> funcao(std::forward<T>(AChamavel));
        if (funcao) FAlvo = std::make_shared<std::function<void(TArgs...)>>(std::move(funcao));
    }

    explicit operator bool() const noexcept { return FAlvo != nullptr; }
    /// The same closure, not merely an equal one; empty ones are the same.
    bool operator==(const TMetodoAnonimo&) const = default;

    /// Calls it. Raises Exception when it is empty. The closure lives until it returns, whatever it does to its copies.
    void operator()(TArgs... AArgs) const {
        const auto alvo = FAlvo;
        if (!alvo) throw Exception(u"Método não atribuído.");
        (*alvo)(std::forward<TArgs>(AArgs)...);
    }

private:
    std::shared_ptr<std::function<void(TArgs...)>> FAlvo{};
};

}  // namespace OryUtils
