// What an open stream does alike on both systems: it has one owner.
#include "oryutils/platform/Fluxo.hpp"

#include <utility>

namespace OryUtils::Interno {

TFluxo::TFluxo(TFluxo&& AOutro) noexcept
    : FAlca(std::exchange(AOutro.FAlca, CNenhum)), FDono(std::exchange(AOutro.FDono, false)) {}

TFluxo& TFluxo::operator=(TFluxo&& AOutro) noexcept {
    if (this != &AOutro) {
        Fechar();
        FAlca = std::exchange(AOutro.FAlca, CNenhum);
        FDono = std::exchange(AOutro.FDono, false);
    }
    return *this;
}

TFluxo::~TFluxo() { Fechar(); }

}  // namespace OryUtils::Interno
