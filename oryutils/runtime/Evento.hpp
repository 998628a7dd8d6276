#pragma once

#include <type_traits>
#include <utility>

namespace OryUtils {

class TObjeto;

/// What any event is made of, whatever its arguments: code and object. Empty when both are null.
struct TMetodo {
    void (*Codigo)() = nullptr;
    const void* Objeto = nullptr;
    bool operator==(const TMetodo&) const = default;
};

/// An event is a method bound to an object: two pointers, comparable, empty until assigned. It borrows the object:
/// unhook the event before the object goes.
/// Example:  OnMudar = TEvento<TObjeto*>::De<&TTela::AoMudar>(tela);
template <typename... TArgs>
class TEvento {
public:
    /// AMetodo is of AObjeto's class or of one that it derives from: the method as that class knows it, so that the
    /// same method bound through the derived class and through the base is the same event.
    template <auto AMetodo, typename T>
    static TEvento De(T& AObjeto) {
        return Ligar<AMetodo>(AMetodo, AObjeto);
    }

    /// Calls the method; does nothing when empty.
    void operator()(TArgs... AArgs) const {
        if (FChamada) FChamada(FObjeto, std::forward<TArgs>(AArgs)...);
    }
    explicit operator bool() const noexcept { return FChamada != nullptr; }
    /// Same object and same method.
    bool operator==(const TEvento&) const = default;

    const void* GetObjeto() const noexcept { return FObjeto; }
    /// Its two parts, for a comparison with events of any kind.
    operator TMetodo() const noexcept { return {reinterpret_cast<void (*)()>(FChamada), FObjeto}; }

private:
    template <auto AMetodo, typename TClasse, typename TFuncao>
    static TEvento Ligar(TFuncao TClasse::*, std::type_identity_t<TClasse>& AObjeto) {
        TEvento evento;
        evento.FObjeto = &AObjeto;
        evento.FChamada = [](void* AAlvo, TArgs... AArgs) {
            (static_cast<TClasse*>(AAlvo)->*AMetodo)(std::forward<TArgs>(AArgs)...);
        };
        return evento;
    }

    void* FObjeto = nullptr;
    void (*FChamada)(void*, TArgs...) = nullptr;
};

/// What a button, a timer or any other component tells when something happened: who it was.
using TEventoNotificacao = TEvento<TObjeto* /*ASender*/>;

}  // namespace OryUtils
