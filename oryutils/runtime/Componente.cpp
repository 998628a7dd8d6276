#include "oryutils/runtime/Componente.hpp"

#include "oryutils/runtime/Excecoes.hpp"

#include <algorithm>

namespace OryUtils {

TComponente::~TComponente() {
    LiberarComponentes();
    // Freed by somebody else than its owner, which must not free it again.
    if (FOwner) static_cast<void>(FOwner->Soltar(*this).release());
}

void TComponente::Inserir(std::unique_ptr<TComponente>&& AComponente) {
    if (!AComponente) throw Exception(u"Argumento <AComponente> não está instanciado.");
    for (const TComponente* acima = this; acima; acima = acima->FOwner)
        if (acima == AComponente.get()) throw Exception(u"Um componente não pode pertencer ao que ele mesmo contém.");
    FComponentes.push_back(std::move(AComponente));
    FComponentes.back()->FOwner = this;
}

std::unique_ptr<TComponente> TComponente::Retirar(const TComponente& AComponente) {
    if (AComponente.FOwner != this) throw Exception(u"O componente pertence a outro.");
    return Soltar(AComponente);
}

TComponente& TComponente::GetComponent(int AIndice) const {
    if (AIndice < 0 || AIndice >= GetComponentCount()) throw EListError(u"Índice de componente fora da lista.");
    return *FComponentes[static_cast<std::size_t>(AIndice)];
}

void TComponente::LiberarComponentes() noexcept {
    // One at a time: a component that goes may take others along, or leave new ones behind.
    while (!FComponentes.empty()) {
        const std::unique_ptr<TComponente> ultimo = std::move(FComponentes.back());
        FComponentes.pop_back();
        ultimo->FOwner = nullptr;
    }
}

std::unique_ptr<TComponente> TComponente::Soltar(const TComponente& AComponente) noexcept {
    // From the end: the newest go first, as a rule.
    const auto achado =
        std::find_if(FComponentes.rbegin(), FComponentes.rend(),
                     [&](const std::unique_ptr<TComponente>& AItem) { return AItem.get() == &AComponente; });
    std::unique_ptr<TComponente> componente = std::move(*achado);
    FComponentes.erase(std::next(achado).base());
    componente->FOwner = nullptr;
    return componente;
}

}  // namespace OryUtils
