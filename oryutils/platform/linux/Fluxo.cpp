#include "oryutils/platform/Fluxo.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/linux/InstanteUtc.hpp"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace OryUtils::Interno {
namespace {

TErroFluxo BuscarErro() noexcept { return ClassificarErroDoSistema(static_cast<std::uint32_t>(errno)); }

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

TErroFluxo TFluxo::Assumir(std::intptr_t AAlca) noexcept {
    if (AAlca == CNenhum) return BuscarErro();
    FAlca = AAlca;
    FDono = true;
    return efNenhum;
}

TErroFluxo TFluxo::AbrirParaLer(const std::string& ANome) {
    Fechar();
    if (const TErroFluxo erro = Assumir(::open(ANome.c_str(), O_RDONLY | O_CLOEXEC)); erro != efNenhum) return erro;
    struct stat dados {};
    if (::fstat(Descritor(FAlca), &dados) != 0 || !S_ISDIR(dados.st_mode)) return efNenhum;
    Fechar();
    return efEhPasta;
}

TErroFluxo TFluxo::AbrirArquivoParaLer(std::u16string_view AArquivo) {
    Fechar();
    if (AArquivo.find(u'\0') != AArquivo.npos) return efNaoExiste;
    // Without O_NONBLOCK a pipe that has no writer would keep the opener waiting.
    const TErroFluxo erro = Assumir(::open(ParaUtf8(AArquivo).c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (erro != efNenhum || BuscarTamanho()) return erro;
    Fechar();
    return efOutro;
}

TErroFluxo TFluxo::CriarNovo(const std::string& ANome, const std::string& ASubstituido) {
    Fechar();
    struct stat antigo {};
    const bool substitui = !ASubstituido.empty() && ::stat(ASubstituido.c_str(), &antigo) == 0;
    const mode_t modo = substitui ? antigo.st_mode & 0777 : 0666;
    const int alca = ::open(ANome.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modo);
    if (substitui && alca >= 0)
        static_cast<void>(::fchmod(alca, modo));  // what the mask took off; without it fewer read
    return Assumir(alca);
}

TErroFluxo TFluxo::AbrirParaReescrever(const std::string& ANome) {
    Fechar();
    return Assumir(::open(ANome.c_str(), CParaEscrever | O_CREAT, 0666));
}

TErroFluxo TFluxo::CortarAqui() noexcept {
    if (!BuscarTamanho()) return efNenhum;
    const off_t fim = ::lseek(Descritor(FAlca), 0, SEEK_CUR);
    return fim >= 0 && ::ftruncate(Descritor(FAlca), fim) == 0 ? efNenhum : BuscarErro();
}

TErroFluxo TFluxo::AbrirParaAcrescentar(const std::string& ANome) {
    Fechar();
    return Assumir(::open(ANome.c_str(), CParaEscrever | O_APPEND));
}

TErroFluxo TFluxo::Fechar() noexcept {
    const int alca = Descritor(std::exchange(FAlca, CNenhum));
    if (!std::exchange(FDono, false)) return efNenhum;
    return ::close(alca) == 0 || errno == EINTR ? efNenhum : BuscarErro();
}

std::size_t TFluxo::Ler(std::span<char> ADestino, TErroFluxo& AErro) noexcept {
    AErro = efNenhum;
    while (true) {
        const ssize_t lidos = ::read(Descritor(FAlca), ADestino.data(), ADestino.size());
        if (lidos >= 0) return static_cast<std::size_t>(lidos);
        if (ValeRepetir(Descritor(FAlca), POLLIN)) continue;
        AErro = BuscarErro();
        return 0;
    }
}

std::size_t TFluxo::LerEm(std::uint64_t AInicio, std::span<char> ADestino) const noexcept {
    std::size_t total = 0;
    while (total < ADestino.size() && AInicio + total <= std::numeric_limits<off_t>::max()) {
        const ssize_t lidos = ::pread(Descritor(FAlca), ADestino.data() + total, ADestino.size() - total,
                                      static_cast<off_t>(AInicio + total));
        if (lidos < 0 && errno == EINTR) continue;
        if (lidos <= 0) break;
        total += static_cast<std::size_t>(lidos);
    }
    return total;
}

TErroFluxo TFluxo::Escrever(std::string_view ABytes) noexcept {
    while (!ABytes.empty()) {
        const ssize_t escritos = ::write(Descritor(FAlca), ABytes.data(), ABytes.size());
        if (escritos >= 0)
            ABytes.remove_prefix(static_cast<std::size_t>(escritos));
        else if (!ValeRepetir(Descritor(FAlca), POLLOUT))
            return BuscarErro();
    }
    return efNenhum;
}

std::optional<std::uint64_t> TFluxo::BuscarTamanho() const noexcept {
    struct stat dados {};
    if (::fstat(Descritor(FAlca), &dados) != 0 || !S_ISREG(dados.st_mode)) return {};
    return static_cast<std::uint64_t>(dados.st_size);
}

TInstanteUtc TFluxo::BuscarUltimaGravacao() const noexcept {
    struct stat dados {};
    return ::fstat(Descritor(FAlca), &dados) == 0 ? DeTimespec(dados.st_mtim) : 0;
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

}  // namespace OryUtils::Interno
