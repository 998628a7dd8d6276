#include "oryutils/platform/ErroDoSistema.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <array>

namespace OryUtils::Interno {

std::u16string DescreverErroDoSistema(std::uint32_t ACodigo) {
    std::array<wchar_t, 1024> texto{};
    DWORD tamanho =
        ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_ARGUMENT_ARRAY,
                         nullptr, ACodigo, 0, texto.data(), static_cast<DWORD>(texto.size()), nullptr);
    while (tamanho > 0 && (texto[tamanho - 1] <= L' ' || texto[tamanho - 1] == L'.')) --tamanho;
    return DeWide({texto.data(), tamanho});
}

}  // namespace OryUtils::Interno
