#include "oryutils/platform/ArquivoVigiado.hpp"

#include <algorithm>
#include <array>
#include <ctime>
#include <linux/magic.h>
#include <sys/inotify.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>

namespace OryUtils::Plataforma {
namespace {

// On these nobody changes a file without this system's knowing, and times are finer than a second.
constexpr std::uint32_t CXfs = 0x58465342;
constexpr std::array<std::uint32_t, 6> CSistemasLocais{EXT4_SUPER_MAGIC, CXfs,        BTRFS_SUPER_MAGIC,
                                                       F2FS_SUPER_MAGIC, TMPFS_MAGIC, OVERLAYFS_SUPER_MAGIC};

bool EhLocal(const std::string& ANome) {
    struct statfs dados {};
    if (::statfs(ANome.c_str(), &dados) != 0) return false;
    return std::ranges::find(CSistemasLocais, static_cast<std::uint32_t>(dados.f_type)) != CSistemasLocais.end();
}

std::string BuscarPasta(const std::string& ANome) {
    const std::size_t barra = ANome.rfind('/');
    return barra == ANome.npos ? "." : ANome.substr(0, barra + 1);
}

std::int64_t BuscarRelogio(clockid_t ARelogio) {
    timespec agora{};
    ::clock_gettime(ARelogio, &agora);
    return std::int64_t{agora.tv_sec} * 1'000'000'000 + agora.tv_nsec;
}

}  // namespace

bool TArquivoVigiado::Iniciar(TFluxo& AFluxo, const std::string& ANome, const TMarcaDeArquivo& AMarca) {
    Fechar();
    if (!EhLocal(ANome)) return false;
    FVigia = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (FVigia < 0) return false;
    constexpr std::uint32_t CDoArquivo = IN_OPEN | IN_CLOSE_WRITE | IN_ATTRIB | IN_MOVE_SELF | IN_DELETE_SELF;
    FNome = ANome;
    FMarca = AMarca;
    FTempoMenor = FTempoMaior = AMarca.Tempo;
    // The look at the file comes behind the watch: nothing falls between them.
    const bool vigiando = ::inotify_add_watch(FVigia, ANome.c_str(), CDoArquivo) >= 0 &&
                          ::inotify_add_watch(FVigia, BuscarPasta(ANome).c_str(), IN_MOVE_SELF) >= 0 &&
                          BuscarMarcaIntacta();
    if (!vigiando) {
        Fechar();
        return false;
    }
    FSegundo = BuscarRelogio(CLOCK_REALTIME_COARSE) / 1'000'000'000;
    FFluxo = std::move(AFluxo);
    return true;
}

bool TArquivoVigiado::Acrescentar(std::string_view ABytes, bool& AMexido) noexcept {
    AMexido = !EstahIntacto();
    if (AMexido) return false;
    // The file gets the time of the coarse clock, or of the fine one when somebody has asked for its time before.
    const std::int64_t antes = BuscarRelogio(CLOCK_REALTIME_COARSE);
    if (FFluxo.Escrever(ABytes) != efNenhum) return false;
    if (ABytes.empty()) return true;
    FTempoMenor = antes;
    FTempoMaior = BuscarRelogio(CLOCK_REALTIME);
    FMarca.Tamanho += ABytes.size();
    return true;
}

std::optional<TMarcaDeArquivo> TArquivoVigiado::Parar() noexcept {
    const auto marca = EstahVigiando() ? BuscarMarcaIntacta() : std::nullopt;
    Fechar();
    return marca;
}

void TArquivoVigiado::Fechar() noexcept {
    if (FVigia >= 0) ::close(std::exchange(FVigia, -1));
    FFluxo.Fechar();
}

bool TArquivoVigiado::EstahIntacto() noexcept {
    int eventos = 0;
    if (::ioctl(FVigia, FIONREAD, &eventos) != 0 || eventos > 0) return false;
    if (FFluxo.IrAoFim() != FMarca.Tamanho) return false;
    const std::int64_t segundo = BuscarRelogio(CLOCK_REALTIME_COARSE) / 1'000'000'000;
    return std::exchange(FSegundo, segundo) == segundo || BuscarMarcaIntacta();
}

std::optional<TMarcaDeArquivo> TArquivoVigiado::BuscarMarcaIntacta() const noexcept {
    struct stat dados {};
    if (::stat(FNome.c_str(), &dados) != 0) return {};
    TMarcaDeArquivo marca = FMarca;
    marca.Tempo = std::int64_t{dados.st_mtim.tv_sec} * 1'000'000'000 + dados.st_mtim.tv_nsec;
    const bool mesmo = dados.st_dev == marca.Volume && dados.st_ino == marca.Indice &&
                       static_cast<std::uint64_t>(dados.st_size) == marca.Tamanho;
    if (!mesmo || marca.Tempo < FTempoMenor || marca.Tempo > FTempoMaior) return {};
    return marca;
}

}  // namespace OryUtils::Plataforma
