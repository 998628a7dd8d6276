#include "oryutils/platform/CodificacaoAnsi.hpp"

#include "oryutils/platform/TextoDoSistema.hpp"
#include "oryutils/platform/windows/Windows.hpp"

namespace OryUtils::Interno {

TDecodificadorAnsi::~TDecodificadorAnsi() = default;

bool TDecodificadorAnsi::ConhecePagina() { return FPagina <= CP_OEMCP || ::IsValidCodePage(FPagina); }

std::u16string TDecodificadorAnsi::Decodificar(std::string_view ABytes) { return DeTextoDoSistema(ABytes, FPagina); }

std::string CodificarAnsi(std::u16string_view ATexto) { return ParaTextoDoSistema(ATexto); }

}  // namespace OryUtils::Interno
