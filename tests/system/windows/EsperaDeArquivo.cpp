#include "oryutils/platform/windows/Windows.hpp"

#include "system/Auxiliar.hpp"

namespace OryUtils::Testes {

bool EsperarArquivo(const std::filesystem::path& AArquivo) {
    const HANDLE avisos =
        ::FindFirstChangeNotificationW(AArquivo.parent_path().c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME);
    while (!std::filesystem::exists(AArquivo) && ::WaitForSingleObject(avisos, CMaiorEsperaDeArquivo) == WAIT_OBJECT_0)
        ::FindNextChangeNotification(avisos);
    ::FindCloseChangeNotification(avisos);
    return std::filesystem::exists(AArquivo);
}

}  // namespace OryUtils::Testes
