#include "oryutils/platform/ArquivoVigiado.hpp"

#include "oryutils/platform/linux/AvisoEmMemoria.hpp"
#include "oryutils/platform/linux/Descritor.hpp"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <linux/magic.h>
#include <map>
#include <mutex>
#include <sys/epoll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace OryUtils::Interno {
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

/// True when nobody else has the file open, for whatever: only then every later change is preceded by an event. The
/// system answers it by granting a lease, which is given back at once; SIGURG, which programs ignore, is what a program
/// that opens the file in between would make the system send.
bool EstahSoAqui(const TFluxo& AFluxo) {
    const int alca = static_cast<int>(AFluxo.GetAlca());
    if (::fcntl(alca, F_SETSIG, SIGURG) != 0 || ::fcntl(alca, F_SETLEASE, F_WRLCK) != 0) return false;
    return ::fcntl(alca, F_SETLEASE, F_UNLCK) == 0;
}

/// What a watched file has been told of.
struct TInscrito {
    std::atomic_bool Mexido = false;
    int Arquivo = -1;  // numbers of the two watches
    int Pasta = -1;
};

/// The watches of the process share one queue of the system, which is dear to close and so stays open.
class TObservador {
public:
    static TObservador& Get() {
        static TObservador observador;
        return observador;
    }

    bool Inscrever(const std::string& ANome, TInscrito& AInscrito) {
        constexpr std::uint32_t CDoArquivo = IN_OPEN | IN_CLOSE_WRITE | IN_ATTRIB | IN_MOVE_SELF | IN_DELETE_SELF;
        if (!FVale) return false;
        const std::lock_guard trava(FTrava);
        AInscrito.Arquivo = Incluir(ANome, CDoArquivo, AInscrito);
        AInscrito.Pasta = Incluir(BuscarPasta(ANome), IN_MOVE_SELF, AInscrito);
        return AInscrito.Arquivo >= 0 && AInscrito.Pasta >= 0;
    }
    void Retirar(TInscrito& AInscrito) {
        const std::lock_guard trava(FTrava);
        for (const int vigia : {AInscrito.Arquivo, AInscrito.Pasta}) {
            const auto achado = FInscritos.find(vigia);
            if (achado == FInscritos.end()) continue;
            std::erase(achado->second, &AInscrito);
            if (!achado->second.empty()) continue;
            FInscritos.erase(achado);
            ::inotify_rm_watch(FAlca.Get(), vigia);
        }
    }
    /// Hands out what has happened; false when the system does not tell. Asking epoll is half as dear as asking the
    /// queue.
    bool Distribuir() {
        if (!FAviso.PodeTerVindo()) return true;
        epoll_event evento{};
        const int prontos = ::epoll_wait(FEspera.Get(), &evento, 1, 0);
        if (prontos < 0 || (prontos > 0 && !LerEventos())) return false;
        FAviso.Armar();
        return true;
    }

private:
    TObservador() {
        epoll_event evento{};
        evento.events = EPOLLIN;
        FVale = ::epoll_ctl(FEspera.Get(), EPOLL_CTL_ADD, FAlca.Get(), &evento) == 0;
    }

    int Incluir(const std::string& ANome, std::uint32_t AEventos, TInscrito& AInscrito) {
        const int vigia = ::inotify_add_watch(FAlca.Get(), ANome.c_str(), AEventos);
        if (vigia >= 0) FInscritos[vigia].push_back(&AInscrito);
        return vigia;
    }

    bool LerEventos() {
        const std::lock_guard trava(FTrava);
        alignas(inotify_event) std::array<char, 4096> bloco;
        for (ssize_t lidos = 0; (lidos = ::read(FAlca.Get(), bloco.data(), bloco.size())) > 0;)
            for (std::size_t i = 0; i < static_cast<std::size_t>(lidos);) {
                inotify_event evento{};
                std::memcpy(&evento, bloco.data() + i, sizeof evento);
                i += sizeof evento + evento.len;
                for (const auto& [vigia, inscritos] : FInscritos)
                    if (vigia == evento.wd || (evento.mask & IN_Q_OVERFLOW) != 0)
                        for (TInscrito* inscrito : inscritos) inscrito->Mexido = true;
            }
        return errno == EAGAIN;
    }

    const TDescritor FAlca{::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)};
    const TDescritor FEspera{::epoll_create1(EPOLL_CLOEXEC)};
    TAvisoEmMemoria FAviso{FAlca.Get()};
    bool FVale = false;
    std::mutex FTrava{};
    std::map<int, std::vector<TInscrito*>> FInscritos{};
};

}  // namespace

struct TArquivoVigiado::TVigia : TInscrito {
    TVigia() = default;
    TVigia(const TVigia&) = delete;
    TVigia& operator=(const TVigia&) = delete;
    ~TVigia() { TObservador::Get().Retirar(*this); }
};

TArquivoVigiado::TArquivoVigiado() = default;
TArquivoVigiado::~TArquivoVigiado() = default;

bool TArquivoVigiado::Iniciar(TFluxo& AFluxo, const std::string& ANome, const TMarcaDeArquivo& AMarca) {
    Fechar();
    if (!EhLocal(ANome)) return false;
    FVigia = std::make_unique<TVigia>();
    FNome = ANome;
    FMarca = AMarca;
    FTempoMenor = FTempoMaior = AMarca.Tempo;
    // The look at the file comes behind the watch: nothing falls between them.
    if (!TObservador::Get().Inscrever(ANome, *FVigia) || !EstahSoAqui(AFluxo) || !BuscarMarcaIntacta()) {
        Fechar();
        return false;
    }
    FSegundo = BuscarRelogio(CLOCK_REALTIME_COARSE) / 1'000'000'000;
    FFluxo = std::move(AFluxo);
    return true;
}

bool TArquivoVigiado::Acrescentar(std::string_view ABytes, bool& AMexido) noexcept {
    // The file gets the time of the coarse clock, or of the fine one when somebody has asked for its time before.
    const std::int64_t antes = BuscarRelogio(CLOCK_REALTIME_COARSE);
    AMexido = !EstahIntacto(antes / 1'000'000'000);
    if (AMexido) return false;
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
    FVigia.reset();
    FFluxo.Fechar();
}

bool TArquivoVigiado::EstahIntacto(std::int64_t ASegundo) noexcept {
    if (!TObservador::Get().Distribuir() || FVigia->Mexido) return false;
    // Cutting a file by its name opens nothing. The position tells the size without asking for the time, which would
    // make the next write dearer.
    const off_t fim = ::lseek(static_cast<int>(FFluxo.GetAlca()), 0, SEEK_END);
    if (fim < 0 || static_cast<std::uint64_t>(fim) != FMarca.Tamanho) return false;
    return std::exchange(FSegundo, ASegundo) == ASegundo || BuscarMarcaIntacta();
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

}  // namespace OryUtils::Interno
