#pragma once

#include <cstdint>
#include <string>

namespace OryUtils::Interno {

/// Why a stream or a file could not be used.
enum TErroFluxo : int {
    efNenhum,
    efNaoExiste,
    efJaExiste,
    efSemPermissao,
    efEhPasta,
    efDiscoCheio,
    efFechado,       // nobody reads the other end
    efNomeComprido,  // longer than the system allows
    efOutro,
};

/// What an error code of the system (GetLastError; errno) means for a stream or a file.
TErroFluxo ClassificarErroDoSistema(std::uint32_t ACodigo) noexcept;

/// The system's own words for one of its error codes (GetLastError, WSAGetLastError; errno), without the final point
/// and line end. Never throws for an unknown code.
std::u16string DescreverErroDoSistema(std::uint32_t ACodigo);

}  // namespace OryUtils::Interno
