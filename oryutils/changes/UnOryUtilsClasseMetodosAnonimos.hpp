#pragma once

#include "oryutils/OryExport.hpp"
#include "oryutils/runtime/Componente.hpp"
#include "oryutils/runtime/Evento.hpp"
#include "oryutils/runtime/MetodoAnonimo.hpp"

#include <memory>
#include <vector>

namespace OryUtils {

/// A counted closure that takes the sender.
using TAcaoEvento = TMetodoAnonimo<TObjeto* /*ASender*/>;

/// Turns closures into events. An event is a method bound to an object; for each closure the converter makes such an
/// object and owns it. As a component the converter may have an owner, which frees it.
/// Example:
///   TFormulario formulario;
///   auto& conversor = TConverteMetodoEvento::Create(formulario);
///   botao.OnClick = conversor.ConverterParaEvento(&formulario, [](TObjeto*) { OryMsg(u"Olá"); });
class ORY_API TConverteMetodoEvento : public TComponente {
public:
    /// The object behind one event.
    class ORY_API TEventoAssociado : public TObjeto {
    public:
        /// Stores the closure and binds AEvento to this object.
        void CriarEvento(TAcaoEvento AAcao, TEventoNotificacao& AEvento);
        /// Calls the closure with ASender; does nothing when there is none.
        void NotificarEvento(TObjeto* ASender);

    private:
        TAcaoEvento FEvento{};
    };

    /// A converter without an owner: its maker frees it.
    TConverteMetodoEvento() = default;
    /// A converter that AOwner frees.
    static TConverteMetodoEvento& Create(TComponente& AOwner) { return AOwner.Criar<TConverteMetodoEvento>(); }
    ~TConverteMetodoEvento() override;

    /// An event that calls AAcao, valid until LimparListaEventos or the end of this object. Each call makes an event of
    /// its own: two for the same closure are not equal. An empty closure makes an event that does nothing.
    /// AComponente  the component that the event is for; not used.
    TEventoNotificacao ConverterParaEvento(const TComponente* AComponente, TAcaoEvento AAcao);

    /// Frees the objects behind all events, and their closures. Unhook events handed out before (OnClick = {}): they
    /// must not fire any more. An event may call this while it fires, if it does not fire again.
    void LimparListaEventos();

private:
    std::vector<std::unique_ptr<TEventoAssociado>> FListaEventos{};
};

}  // namespace OryUtils
