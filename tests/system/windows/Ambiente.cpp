#include "system/Ambiente.hpp"

#include "oryutils/platform/windows/Windows.hpp"

#include <vector>
#include <winsock2.h>

namespace Testes {

const char* const CArquivoVazio = "NUL";

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

namespace {

std::intptr_t AbrirSocket() {
    WSADATA dados;
    ::WSAStartup(MAKEWORD(2, 2), &dados);
    return static_cast<std::intptr_t>(::socket(AF_INET, SOCK_STREAM, 0));
}

}  // namespace

TEscuta::TEscuta(std::uint16_t APorta) : FSocket(AbrirSocket()) {
    sockaddr_in endereco{};
    endereco.sin_family = AF_INET;
    endereco.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
    endereco.sin_port = ::htons(APorta);
    auto* const generico = reinterpret_cast<sockaddr*>(&endereco);
    int tamanho = sizeof endereco;
    const auto alca = static_cast<SOCKET>(FSocket);
    if (::bind(alca, generico, tamanho) != 0 || ::listen(alca, 1) != 0) return;
    if (::getsockname(alca, generico, &tamanho) == 0) FPorta = ::ntohs(endereco.sin_port);
}

TEscuta::~TEscuta() {
    ::closesocket(static_cast<SOCKET>(FSocket));
    ::WSACleanup();
}

}  // namespace Testes
