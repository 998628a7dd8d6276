#include "oryutils/platform/ErroDoSistema.hpp"

#include "oryutils/characters/Utf.hpp"

#include <cerrno>
#include <system_error>

namespace OryUtils::Interno {

TErroFluxo ClassificarErroDoSistema(std::uint32_t ACodigo) noexcept {
    switch (ACodigo) {
        case 0:
            return efNenhum;
        case ENOENT:
        case ENOTDIR:
            return efNaoExiste;
        case EEXIST:
            return efJaExiste;
        case EACCES:
        case EPERM:
        case EROFS:
            return efSemPermissao;
        case EISDIR:
            return efEhPasta;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return efDiscoCheio;
        case EPIPE:
            return efFechado;
        case ENAMETOOLONG:
            return efNomeComprido;
        default:
            return efOutro;
    }
}

std::u16string DescreverErroDoSistema(std::uint32_t ACodigo) {
    return DeUtf8(std::generic_category().message(static_cast<int>(ACodigo)));
}

}  // namespace OryUtils::Interno
