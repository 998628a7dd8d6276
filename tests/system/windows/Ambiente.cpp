#include "system/Ambiente.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <vector>

namespace Testes {

std::string BuscarVariavel(const std::string& ANome) {
    std::vector<char> valor(32768);
    return {valor.data(), ::GetEnvironmentVariableA(ANome.c_str(), valor.data(), static_cast<DWORD>(valor.size()))};
}

void DefinirVariavel(const std::string& ANome, const std::string& AValor) {
    ::SetEnvironmentVariableA(ANome.c_str(), AValor.empty() ? nullptr : AValor.c_str());
}

void EnviarMensagemAEstaThread() { ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0); }

void EnviarFimDoPrograma() { ::PostQuitMessage(0); }

void RetirarMensagens() {
    MSG mensagem;
    while (::PeekMessageW(&mensagem, nullptr, 0, 0, PM_REMOVE)) continue;
}

std::chrono::milliseconds BuscarTempoDeProcessador() {
    FILETIME inicio, fim, nucleo, usuario;
    ::GetProcessTimes(::GetCurrentProcess(), &inicio, &fim, &nucleo, &usuario);
    const auto ler = [](const FILETIME& AInstante) {
        return std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>(
            static_cast<std::int64_t>(AInstante.dwHighDateTime) << 32 | AInstante.dwLowDateTime);
    };
    return std::chrono::duration_cast<std::chrono::milliseconds>(ler(nucleo) + ler(usuario));
}

bool EsperarArquivo(const std::filesystem::path& AArquivo) {
    const HANDLE avisos =
        ::FindFirstChangeNotificationW(AArquivo.parent_path().c_str(), FALSE, FILE_NOTIFY_CHANGE_FILE_NAME);
    while (!std::filesystem::exists(AArquivo) && ::WaitForSingleObject(avisos, CMaiorEsperaDeArquivo) == WAIT_OBJECT_0)
        ::FindNextChangeNotification(avisos);
    ::FindCloseChangeNotification(avisos);
    return std::filesystem::exists(AArquivo);
}

}  // namespace Testes
