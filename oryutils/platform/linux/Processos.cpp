#include "oryutils/platform/Processos.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/platform/Arquivos.hpp"
#include "oryutils/platform/VariavelDeAmbiente.hpp"
#include "oryutils/platform/linux/Filhos.hpp"

#include <climits>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <dirent.h>
#include <filesystem>
#include <malloc.h>
#include <map>
#include <memory>
#include <optional>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace OryUtils::Interno {
namespace {

std::string CaminhoDe(pid_t APid, std::string_view AArquivo) {
    std::string caminho = "/proc/" + std::to_string(APid) + '/';
    return caminho.append(AArquivo);
}

// What stands behind a name at the beginning of a line, up to the line's end.
std::string_view BuscarCampo(std::string_view ATexto, std::string_view ANome) {
    std::size_t inicio = ATexto.starts_with(ANome.substr(1)) ? ANome.size() - 1 : ATexto.find(ANome);
    if (inicio == ATexto.npos) return {};
    if (inicio != ANome.size() - 1) inicio += ANome.size();
    inicio = ATexto.find_first_not_of(" \t", inicio);
    if (inicio == ATexto.npos) return {};
    return ATexto.substr(inicio, ATexto.find('\n', inicio) - inicio);
}

template <typename TNumero>
TNumero LerNumero(std::string_view ATexto) {
    TNumero numero = 0;
    std::from_chars(ATexto.data(), ATexto.data() + ATexto.size(), numero);
    return numero;
}

struct TSituacao {
    std::string Nome;  // at most 15 bytes
    bool Terminado = false;
    uid_t Usuario = 0;
    std::uint64_t Memoria = 0;
};

std::optional<TSituacao> LerSituacao(pid_t APid) {
    const std::string texto = LerArquivo(DeUtf8(CaminhoDe(APid, "status"))).value_or("");
    if (texto.empty()) return std::nullopt;
    TSituacao situacao;
    situacao.Nome = BuscarCampo(texto, "\nName:");
    const std::string_view estado = BuscarCampo(texto, "\nState:");
    situacao.Terminado = estado.starts_with('Z') || estado.starts_with('X');
    const std::string_view usuarios = BuscarCampo(texto, "\nUid:");  // real, effective, saved, of the file system
    situacao.Usuario = LerNumero<uid_t>(usuarios.substr(std::min(usuarios.find('\t') + 1, usuarios.size())));
    situacao.Memoria = LerNumero<std::uint64_t>(BuscarCampo(texto, "\nVmRSS:")) * 1024;
    return situacao;
}

std::string LerCaminho(pid_t APid) {
    std::error_code erro;
    std::string caminho = std::filesystem::read_symlink(CaminhoDe(APid, "exe"), erro);
    constexpr std::string_view CExcluido = " (deleted)";  // a program replaced while it runs
    if (caminho.ends_with(CExcluido)) caminho.resize(caminho.size() - CExcluido.size());
    return caminho;
}

std::string_view SemPasta(std::string_view ACaminho) { return ACaminho.substr(ACaminho.rfind('/') + 1); }

/// The file name of the executable. Of other users' programs the system tells 15 bytes of it: the whole name is the
/// argument that begins with them, the first one, or the second one of a script.
std::string BuscarNome(pid_t APid, const std::string& ACaminho, const std::string& ANomeCurto) {
    constexpr std::size_t CMaiorNomeCurto = 15;
    if (!ACaminho.empty()) return std::string(SemPasta(ACaminho));
    if (ANomeCurto.size() < CMaiorNomeCurto) return ANomeCurto;
    const std::string linha = LerArquivo(DeUtf8(CaminhoDe(APid, "cmdline"))).value_or("");
    std::string_view resto = linha;
    for (int argumento = 0; argumento < 2; ++argumento) {
        const std::string_view nome = SemPasta(resto.substr(0, resto.find('\0')));
        if (nome.starts_with(ANomeCurto)) return std::string(nome);
        resto.remove_prefix(std::min(resto.find('\0') + 1, resto.size()));
    }
    return ANomeCurto;
}

std::string BuscarNomeDoUsuario(uid_t AUsuario) {
    std::vector<char> memoria(1024);
    passwd conta{};
    passwd* achada = nullptr;
    while (::getpwuid_r(AUsuario, &conta, memoria.data(), memoria.size(), &achada) == ERANGE)
        memoria.resize(memoria.size() * 2);
    return achada ? achada->pw_name : "";
}

template <typename TAcao>
void PercorrerProcessos(TAcao AAcao) {
    const std::unique_ptr<DIR, decltype([](DIR* APasta) { ::closedir(APasta); })> pasta(::opendir("/proc"));
    if (!pasta) return;
    while (const dirent* entrada = ::readdir(pasta.get())) {
        const std::string_view nome = entrada->d_name;
        if (nome.front() < '1' || nome.front() > '9') continue;
        if (!AAcao(LerNumero<pid_t>(nome))) return;
    }
}

// Who opened a descriptor for each of many processes could soon open no file: a quarter of them is left free.
TAlcaDeProcesso AbrirComReserva(pid_t APid, std::intptr_t AMaior) {
    TAlcaDeProcesso alca(AbrirPidfd(APid));
    return alca.Get() <= AMaior ? std::move(alca) : TAlcaDeProcesso();
}

std::intptr_t BuscarMaiorAlca() {
    rlimit limite{};
    if (::getrlimit(RLIMIT_NOFILE, &limite) != 0) return 0;
    return static_cast<std::intptr_t>(std::min<rlim_t>(limite.rlim_cur, INT_MAX) / 4 * 3);
}

bool EnviarMorte(const TAlcaDeProcesso& AAlca, pid_t APid) {
    if (AAlca) return ::syscall(SYS_pidfd_send_signal, static_cast<int>(AAlca.Get()), SIGKILL, nullptr, 0) == 0;
    return ::kill(APid, SIGKILL) == 0;
}

bool PodeTerminar(pid_t APid) { return ::kill(APid, 0) == 0; }

pid_t BuscarPid(std::uint32_t AID) { return AID <= INT_MAX ? static_cast<pid_t>(AID) : 0; }

}  // namespace

std::vector<TProcessoDoSistema> ListarProcessos(const std::function<bool(std::u16string_view)>& AQuer) {
    ColherFilhos();
    const std::intptr_t maiorAlca = BuscarMaiorAlca();
    struct TUsuario {
        std::u16string Nome;
        bool Quer;
    };
    std::map<uid_t, TUsuario> usuarios;
    std::vector<TProcessoDoSistema> processos;
    PercorrerProcessos([&](pid_t APid) {
        const std::optional<TSituacao> situacao = LerSituacao(APid);
        if (!situacao || situacao->Terminado) return true;
        auto usuario = usuarios.find(situacao->Usuario);
        if (usuario == usuarios.end()) {
            std::u16string nome = DeUtf8(BuscarNomeDoUsuario(situacao->Usuario));
            const bool quer = AQuer(nome);
            usuario = usuarios.emplace(situacao->Usuario, TUsuario{std::move(nome), quer}).first;
        }
        if (!usuario->second.Quer) return true;
        const std::string caminho = LerCaminho(APid);
        processos.push_back({.ID = static_cast<std::uint32_t>(APid),
                             .Nome = DeUtf8(BuscarNome(APid, caminho, situacao->Nome)),
                             .Usuario = usuario->second.Nome,
                             .Caminho = DeUtf8(caminho),
                             .Alca = AbrirComReserva(APid, maiorAlca),
                             .Memoria = situacao->Memoria});
        return true;
    });
    return processos;
}

TDonoDeProcesso BuscarDonoDoProcesso(std::uint32_t AID) {
    const std::optional<TSituacao> situacao = LerSituacao(BuscarPid(AID));
    if (!situacao) return {};
    utsname sistema{};
    ::uname(&sistema);
    return {DeUtf8(BuscarNomeDoUsuario(situacao->Usuario)), DeUtf8(sistema.nodename)};
}

std::u16string BuscarCaminhoDoProcesso(std::uint32_t AID) { return DeUtf8(LerCaminho(BuscarPid(AID))); }

TAlcaDeProcesso AbrirProcesso(const std::function<bool(std::u16string_view)>& AQuer) {
    TAlcaDeProcesso alca;
    PercorrerProcessos([&](pid_t APid) {
        const std::optional<TSituacao> situacao = LerSituacao(APid);
        if (!situacao || situacao->Terminado || !AQuer(DeUtf8(BuscarNome(APid, LerCaminho(APid), situacao->Nome))))
            return true;
        alca = TAlcaDeProcesso(AbrirPidfd(APid));
        return !alca;
    });
    return alca;
}

std::uint64_t BuscarMemoriaDoProcesso(const TAlcaDeProcesso& AAlca) {
    if (!AAlca) return 0;
    const std::string dados = LerArquivo(DeUtf8("/proc/self/fdinfo/" + std::to_string(AAlca.Get()))).value_or("");
    const auto pid = LerNumero<pid_t>(BuscarCampo(dados, "\nPid:"));  // -1 once it has ended
    const std::optional<TSituacao> situacao = pid > 0 ? LerSituacao(pid) : std::nullopt;
    return situacao ? situacao->Memoria : 0;
}

TFimDeProcesso TerminarProcesso(std::uint32_t AID, std::u16string& AErro) {
    const pid_t pid = BuscarPid(AID);
    if (pid == 0) return fpNaoAberto;  // to the system it would be a whole group
    ColherFilhos();
    const TAlcaDeProcesso alca(AbrirPidfd(pid));
    if (!PodeTerminar(pid) || (alca && Terminou(alca.Get()))) return fpNaoAberto;
    if (EnviarMorte(alca, pid)) return fpTerminado;
    AErro = DescreverErroDoSistema(static_cast<std::uint32_t>(errno));
    return fpErro;
}

int TerminarProcessos(const std::function<bool(std::u16string_view)>& AQuer) {
    int terminados = 0;
    PercorrerProcessos([&](pid_t APid) {
        const TAlcaDeProcesso alca(AbrirPidfd(APid));  // before the name: the number cannot change hands in between
        const std::optional<TSituacao> situacao = LerSituacao(APid);
        if (!situacao || situacao->Terminado || !AQuer(DeUtf8(BuscarNome(APid, LerCaminho(APid), situacao->Nome))))
            return true;
        if (EnviarMorte(alca, APid)) ++terminados;
        return true;
    });
    return terminados;
}

bool EhAdministrador() { return ::geteuid() == 0; }

bool EhProcessoDe32BitsEmSistemaDe64() {
    utsname sistema{};
    if (sizeof(void*) != 4 || ::uname(&sistema) != 0) return false;
    return std::string_view(sistema.machine).find("64") != std::string_view::npos;
}

void LiberarMemoria() { ::malloc_trim(0); }

void AbrirConfiguracaoDeDataHora() {
    if (BuscarVariavelDeAmbiente("DISPLAY").empty() && BuscarVariavelDeAmbiente("WAYLAND_DISPLAY").empty()) return;
    const std::array<std::vector<std::string>, 4> programas{{{"gnome-control-center", "datetime"},
                                                             {"systemsettings", "kcm_clock"},
                                                             {"cinnamon-settings", "calendar"},
                                                             {"time-admin"}}};
    for (const std::vector<std::string>& programa : programas)
        if (GerarFilho({.Argumentos = programa}) > 0) return;
}

}  // namespace OryUtils::Interno
