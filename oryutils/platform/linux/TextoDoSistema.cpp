#include "oryutils/platform/TextoDoSistema.hpp"

#include "oryutils/characters/Utf.hpp"

namespace OryUtils::Interno {

std::string ParaTextoDoSistema(std::u16string_view ATexto) { return ParaUtf8(ATexto); }
std::u16string DeTextoDoSistema(std::string_view ATexto, std::uint32_t) { return DeUtf8(ATexto); }
std::u16string_view BuscarQuebraDeLinha() noexcept { return u"\n"; }

}  // namespace OryUtils::Interno
