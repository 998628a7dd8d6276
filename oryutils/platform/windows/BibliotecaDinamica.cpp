#include "oryutils/platform/BibliotecaDinamica.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {
namespace {

// A full path also finds the DLLs that stand beside the library.
DWORD BuscarOpcoes(std::u16string_view ANome) {
    const bool caminho = ANome.find_first_of(u"\\/:") != std::u16string_view::npos;
    return caminho ? LOAD_WITH_ALTERED_SEARCH_PATH : 0;
}

}  // namespace

TBibliotecaDinamica::TBibliotecaDinamica(std::u16string_view ANome)
    : FAlca(::LoadLibraryExW(ParaWide(std::u16string(ANome)), nullptr, BuscarOpcoes(ANome))) {}

void TBibliotecaDinamica::Descarregar() noexcept {
    if (void* alca = std::exchange(FAlca, nullptr)) ::FreeLibrary(static_cast<HMODULE>(alca));
}

TBibliotecaDinamica::TEndereco TBibliotecaDinamica::BuscarEndereco(const char* ANome) const noexcept {
    return FAlca ? reinterpret_cast<TEndereco>(::GetProcAddress(static_cast<HMODULE>(FAlca), ANome)) : nullptr;
}

bool EstahCarregada(std::u16string_view ANome) {
    return ::GetModuleHandleW(ParaWide(std::u16string(ANome))) != nullptr;
}

}  // namespace OryUtils::Interno
