#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/platform/TextoDoSistema.hpp"

namespace OryUtils::Interno {

TDecodificadorAnsi::~TDecodificadorAnsi() = default;

std::u16string TDecodificadorAnsi::Decodificar(std::string_view ABytes) { return DeTextoDoSistema(ABytes); }

}  // namespace OryUtils::Interno
