#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/platform/TextoDoSistema.hpp"

namespace OryUtils::Interno {

TDecodificadorAnsi::~TDecodificadorAnsi() = default;

std::u16string TDecodificadorAnsi::Decodificar(std::string_view ABytes) { return DeTextoDoSistema(ABytes); }

std::string CodificarAnsi(std::u16string_view ATexto) { return ParaTextoDoSistema(ATexto); }

}  // namespace OryUtils::Interno
