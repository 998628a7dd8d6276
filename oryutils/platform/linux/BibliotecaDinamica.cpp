#include "oryutils/platform/BibliotecaDinamica.hpp"

#include "oryutils/characters/Utf.hpp"

#include <dlfcn.h>

namespace OryUtils::Interno {

TBibliotecaDinamica::TBibliotecaDinamica(std::u16string_view ANome)
    : FAlca(::dlopen(ParaUtf8(ANome).c_str(), RTLD_NOW | RTLD_LOCAL)) {}

void TBibliotecaDinamica::Descarregar() noexcept {
    if (void* alca = std::exchange(FAlca, nullptr)) ::dlclose(alca);
}

TBibliotecaDinamica::TEndereco TBibliotecaDinamica::BuscarEndereco(const char* ANome) const noexcept {
    return FAlca ? reinterpret_cast<TEndereco>(::dlsym(FAlca, ANome)) : nullptr;
}

bool EstahCarregada(std::u16string_view ANome) {
    void* alca = ::dlopen(ParaUtf8(ANome).c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (alca) ::dlclose(alca);
    return alca != nullptr;
}

}  // namespace OryUtils::Interno
