#include "oryutils/platform/ErroDoSistema.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <array>

namespace OryUtils::Interno {

TErroFluxo ClassificarErroDoSistema(std::uint32_t ACodigo) noexcept {
    switch (ACodigo) {
        case ERROR_SUCCESS:
            return efNenhum;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_NETPATH:
            return efNaoExiste;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
            return efJaExiste;
        case ERROR_ACCESS_DENIED:
        case ERROR_SHARING_VIOLATION:
        case ERROR_WRITE_PROTECT:
            return efSemPermissao;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return efDiscoCheio;
        case ERROR_BROKEN_PIPE:
        case ERROR_NO_DATA:
            return efFechado;
        case ERROR_FILENAME_EXCED_RANGE:
            return efNomeComprido;
        default:
            return efOutro;
    }
}

std::u16string DescreverErroDoSistema(std::uint32_t ACodigo) {
    std::array<wchar_t, 1024> texto{};
    DWORD tamanho =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_ARGUMENT_ARRAY,
                         nullptr, ACodigo, 0, texto.data(), static_cast<DWORD>(texto.size()), nullptr);
    while (tamanho > 0 && (texto[tamanho - 1] <= L' ' || texto[tamanho - 1] == L'.')) --tamanho;
    return DeWide({texto.data(), tamanho});
}

}  // namespace OryUtils::Interno
