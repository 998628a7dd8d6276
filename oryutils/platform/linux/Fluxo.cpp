#include "oryutils/platform/Fluxo.hpp"

#include "oryutils/platform/Arquivos.hpp"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace OryUtils::Interno {
namespace {

TErroFluxo DeErrno(int AErro) {
    switch (AErro) {
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
        default:
            return efOutro;
    }
}

int Descritor(std::intptr_t AAlca) { return static_cast<int>(AAlca); }

/// True when the call is to be made again: a signal came in between, or the other side of a pipe is not ready and the
/// system was told not to wait (by whoever shares the standard streams, or at the opening).
bool ValeRepetir(int AAlca, short AEvento) noexcept {
    if (errno == EINTR) return true;
    if (errno != EAGAIN) return false;
    pollfd espera{.fd = AAlca, .events = AEvento, .revents = 0};
    return ::poll(&espera, 1, -1) > 0 || errno == EINTR;
}

/// A pipe without a reader is refused, where opening it would wait for one.
constexpr int CParaEscrever = O_WRONLY | O_NONBLOCK | O_CLOEXEC;

std::optional<TMarcaDeArquivo> DeDados(const struct stat& ADados) {
    if (!S_ISREG(ADados.st_mode)) return {};
    return TMarcaDeArquivo{ADados.st_dev, ADados.st_ino, static_cast<std::uint64_t>(ADados.st_size)};
}

}  // namespace

TFluxo TFluxo::EntradaPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = STDIN_FILENO;
    return fluxo;
}

TFluxo TFluxo::SaidaPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = STDOUT_FILENO;
    return fluxo;
}

TFluxo TFluxo::ErroPadrao() noexcept {
    TFluxo fluxo;
    fluxo.FAlca = STDERR_FILENO;
    return fluxo;
}

TErroFluxo TFluxo::AbrirParaLer(const std::string& ANome) {
    Fechar();
    const int alca = ::open(ANome.c_str(), O_RDONLY | O_CLOEXEC);
    if (alca < 0) return DeErrno(errno);
    struct stat dados {};
    if (::fstat(alca, &dados) == 0 && S_ISDIR(dados.st_mode)) {
        ::close(alca);
        return efEhPasta;
    }
    FAlca = alca;
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::CriarNovo(const std::string& ANome, const std::string& ASubstituido) {
    Fechar();
    struct stat antigo {};
    const bool substitui = !ASubstituido.empty() && ::stat(ASubstituido.c_str(), &antigo) == 0;
    const mode_t modo = substitui ? antigo.st_mode & 0777 : 0666;
    const int alca = ::open(ANome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
    if (alca < 0) return DeErrno(errno);
    if (substitui) static_cast<void>(::fchmod(alca, modo));  // what the mask took off; without it fewer may read
    FAlca = alca;
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::CriarOuEsvaziar(const std::string& ANome) {
    Fechar();
    const int alca = ::open(ANome.c_str(), CParaEscrever | O_CREAT | O_TRUNC, 0666);
    if (alca < 0) return DeErrno(errno);
    FAlca = alca;
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::AbrirParaAcrescentar(const std::string& ANome) {
    Fechar();
    const int alca = ::open(ANome.c_str(), CParaEscrever | O_APPEND);
    if (alca < 0) return DeErrno(errno);
    FAlca = alca;
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::Fechar() noexcept {
    const int alca = Descritor(std::exchange(FAlca, CNenhum));
    if (!std::exchange(FDono, false)) return efNenhum;
    return ::close(alca) == 0 || errno == EINTR ? efNenhum : DeErrno(errno);
}

std::size_t TFluxo::Ler(std::span<char> ADestino, TErroFluxo& AErro) noexcept {
    AErro = efNenhum;
    while (true) {
        const ssize_t lidos = ::read(Descritor(FAlca), ADestino.data(), ADestino.size());
        if (lidos >= 0) return static_cast<std::size_t>(lidos);
        if (ValeRepetir(Descritor(FAlca), POLLIN)) continue;
        AErro = DeErrno(errno);
        return 0;
    }
}

TErroFluxo TFluxo::Escrever(std::string_view ABytes) noexcept {
    while (!ABytes.empty()) {
        const ssize_t escritos = ::write(Descritor(FAlca), ABytes.data(), ABytes.size());
        if (escritos >= 0)
            ABytes.remove_prefix(static_cast<std::size_t>(escritos));
        else if (!ValeRepetir(Descritor(FAlca), POLLOUT))
            return DeErrno(errno);
    }
    return efNenhum;
}

std::optional<std::uint64_t> TFluxo::BuscarTamanho() const noexcept {
    struct stat dados {};
    if (::fstat(Descritor(FAlca), &dados) != 0 || !S_ISREG(dados.st_mode)) return {};
    return static_cast<std::uint64_t>(dados.st_size);
}

std::optional<TMarcaDeArquivo> TFluxo::BuscarMarca() const noexcept {
    struct stat dados {};
    if (::fstat(Descritor(FAlca), &dados) != 0) return {};
    return DeDados(dados);
}

std::optional<TMarcaDeArquivo> BuscarMarcaDoArquivo(const std::string& ANome) {
    struct stat dados {};
    if (::stat(ANome.c_str(), &dados) != 0) return {};
    return DeDados(dados);
}

bool TFluxo::EhTerminal() const noexcept { return ::isatty(Descritor(FAlca)) == 1; }

bool TFluxo::LerEsperaria() const noexcept {
    pollfd espera{.fd = Descritor(FAlca), .events = POLLIN, .revents = 0};
    return ::poll(&espera, 1, 0) == 0;
}

int TFluxo::BuscarLarguraDoTerminal() const noexcept {
    winsize tamanho{};
    const bool sabe = ::ioctl(Descritor(FAlca), TIOCGWINSZ, &tamanho) == 0 && tamanho.ws_col > 0;
    return sabe ? tamanho.ws_col : 80;
}

TErroFluxo SubstituirArquivo(const std::string& ADe, const std::string& APara) {
    return std::rename(ADe.c_str(), APara.c_str()) == 0 ? efNenhum : DeErrno(errno);
}

TErroFluxo ExcluirArquivo(const std::string& ANome) {
    return ::unlink(ANome.c_str()) == 0 || errno == ENOENT ? efNenhum : DeErrno(errno);
}

}  // namespace OryUtils::Interno
