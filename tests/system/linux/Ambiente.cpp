#include "system/Ambiente.hpp"

#include <array>
#include <cstdlib>
#include <ctime>
#include <netinet/in.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <unistd.h>

namespace Testes {

const char* const CArquivoVazio = "/dev/null";

std::string BuscarVariavel(const std::string& ANome) {
    const char* valor = std::getenv(ANome.c_str());
    return valor ? valor : "";
}

void DefinirVariavel(const std::string& ANome, const std::string& AValor) {
    if (AValor.empty())
        ::unsetenv(ANome.c_str());
    else
        ::setenv(ANome.c_str(), AValor.c_str(), 1);
}

void EnviarMensagemAEstaThread() {}
void EnviarFimDoPrograma() {}
void RetirarMensagens() {}

std::chrono::milliseconds BuscarTempoDeProcessador() {
    timespec gasto{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &gasto);
    return std::chrono::milliseconds(gasto.tv_sec * 1000 + gasto.tv_nsec / 1'000'000);
}

bool EsperarArquivo(const std::filesystem::path& AArquivo) {
    const int avisos = ::inotify_init1(IN_CLOEXEC);
    ::inotify_add_watch(avisos, AArquivo.parent_path().c_str(), IN_CREATE);
    pollfd espera{avisos, POLLIN, 0};
    std::array<char, 4096> lidos;
    while (!std::filesystem::exists(AArquivo) && ::poll(&espera, 1, CMaiorEsperaDeArquivo) > 0)
        if (::read(avisos, lidos.data(), lidos.size()) <= 0) break;
    ::close(avisos);
    return std::filesystem::exists(AArquivo);
}

TEscuta::TEscuta(std::uint16_t APorta) : FSocket(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in endereco{};
    endereco.sin_family = AF_INET;
    endereco.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    endereco.sin_port = htons(APorta);
    auto* const generico = reinterpret_cast<sockaddr*>(&endereco);
    socklen_t tamanho = sizeof endereco;
    const auto alca = static_cast<int>(FSocket);
    if (::bind(alca, generico, tamanho) != 0 || ::listen(alca, 1) != 0) return;
    if (::getsockname(alca, generico, &tamanho) == 0) FPorta = ntohs(endereco.sin_port);
}

TEscuta::~TEscuta() { ::close(static_cast<int>(FSocket)); }

}  // namespace Testes
