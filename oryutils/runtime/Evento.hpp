#pragma once

#include <utility>

namespace OryUtils {

/// An event is a method bound to an object: two pointers, comparable, empty until assigned. It borrows the object:
/// unhook the event before the object goes.
/// Example:  OnMudar = TEvento<TObjeto*>::De<&TTela::AoMudar>(tela);
template <typename... TArgs>
class TEvento {
public:
    template <auto AMetodo, typename T>
    static TEvento De(T& AObjeto) {
        TEvento evento;
        evento.FObjeto = &AObjeto;
        evento.FChamada = [](void* AAlvo, TArgs... AArgs) {
            (static_cast<T*>(AAlvo)->*AMetodo)(std::forward<TArgs>(AArgs)...);
        };
        return evento;
    }

    /// Calls the method; does nothing when empty.
    void operator()(TArgs... AArgs) const {
        if (FChamada) FChamada(FObjeto, std::forward<TArgs>(AArgs)...);
    }
    explicit operator bool() const noexcept { return FChamada != nullptr; }
    /// Same object and same method.
    bool operator==(const TEvento&) const = default;

    const void* GetObjeto() const noexcept { return FObjeto; }

private:
    void* FObjeto = nullptr;
    void (*FChamada)(void*, TArgs...) = nullptr;
};

}  // namespace OryUtils
