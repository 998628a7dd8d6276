#include "oryutils/changes/UnOryUtilsClasseMetodosAnonimos.hpp"

#include <utility>

namespace OryUtils {

void TConverteMetodoEvento::TEventoAssociado::CriarEvento(TAcaoEvento AAcao, TEventoNotificacao& AEvento) {
    FEvento = std::move(AAcao);
    AEvento = TEventoNotificacao::De<&TEventoAssociado::NotificarEvento>(*this);
}

void TConverteMetodoEvento::TEventoAssociado::NotificarEvento(TObjeto* ASender) {
    // A copy: the closure may free this object.
    if (const TAcaoEvento evento = FEvento) evento(ASender);
}

TConverteMetodoEvento::~TConverteMetodoEvento() { LimparListaEventos(); }

TEventoNotificacao TConverteMetodoEvento::ConverterParaEvento(const TComponente* AComponente, TAcaoEvento AAcao) {
    static_cast<void>(AComponente);
    TEventoNotificacao evento;
    FListaEventos.push_back(std::make_unique<TEventoAssociado>());
    FListaEventos.back()->CriarEvento(std::move(AAcao), evento);
    return evento;
}

void TConverteMetodoEvento::LimparListaEventos() {
    // The list is emptied first: the end of an object that a closure held may call this or ConverterParaEvento.
    const auto antigos = std::exchange(FListaEventos, {});
}

}  // namespace OryUtils
