#include "oryutils/platform/ErroDoSistema.hpp"

#include "oryutils/characters/Utf.hpp"

#include <system_error>

namespace OryUtils::Interno {

std::u16string DescreverErroDoSistema(std::uint32_t ACodigo) {
    return DeUtf8(std::generic_category().message(static_cast<int>(ACodigo)));
}

}  // namespace OryUtils::Interno
