#include "oryutils/platform/Caminho.hpp"

#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

bool ExisteComando(std::u16string_view AComando) {
    const std::u16string nome(AComando);
    return SearchPathW(nullptr, ParaWide(nome), L".exe", 0, nullptr, nullptr) != 0;
}

}  // namespace OryUtils::Interno
