#include "oryutils/platform/VariavelDeAmbiente.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/windows/Windows.hpp"

#include <algorithm>

namespace OryUtils::Interno {

std::string BuscarVariavelDeAmbiente(const char* ANome) {
    const std::u16string nome = DeUtf8(ANome);
    std::u16string valor(::GetEnvironmentVariableW(ParaWide(nome), nullptr, 0), u'\0');  // with room for its end
    const DWORD tamanho =
        ::GetEnvironmentVariableW(ParaWide(nome), ParaWide(valor.data()), static_cast<DWORD>(valor.size()));
    valor.resize(std::min<std::size_t>(tamanho, valor.size()));
    return ParaUtf8(valor);
}

}  // namespace OryUtils::Interno
