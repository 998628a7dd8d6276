// Commands and processes beside what one would write by hand: the start of the program true beside popen (by its path:
// to the shell, "true" is no program), also with 1 GiB in use;
// 100 MB of output as text, beside loops of reads of 255 bytes; the list of 1,000 processes beside ps -e.

#include "oryutils/system/OryUtilsSystem.hpp"

#include <benchmark/benchmark.h>

#include <codecvt>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using OryUtils::TOryUtilsSistema;

constexpr std::size_t CMegabytes = 100;

/// 1 GiB, every page of it touched.
class TMemoria {
public:
    TMemoria() : FMemoria(std::size_t{1} << 30, 'x') { benchmark::DoNotOptimize(FMemoria.data()); }

private:
    std::vector<char> FMemoria;
};

/// 100 MB of text lines in a file of the memory disk.
class TArquivo {
public:
    TArquivo() {
        std::FILE* arquivo = std::fopen(FNome, "wb");
        const std::string linha = "  Interface: 192.168.0.10 --- 0x4   00-1a-2b-3c-4d-5e     dinamico   sala 3 \r\n";
        for (std::size_t i = 0; i < CMegabytes * 1'000'000 / linha.size(); ++i) std::fputs(linha.c_str(), arquivo);
        std::fclose(arquivo);
    }
    ~TArquivo() { std::remove(FNome); }
    TArquivo(const TArquivo&) = delete;
    TArquivo& operator=(const TArquivo&) = delete;
    static constexpr const char* FNome = "/dev/shm/ory_bench_saida";
    static constexpr const char* FComando = "cat /dev/shm/ory_bench_saida";
    static constexpr const char16_t* FComandoLargo = u"cat /dev/shm/ory_bench_saida";
};

/// 1,000 processes that do nothing.
class TMilProcessos {
public:
    TMilProcessos() {
        char programa[] = "sleep";
        char tempo[] = "600";
        char* argumentos[] = {programa, tempo, nullptr};
        for (int i = 0; i < 1000; ++i) {
            pid_t pid = 0;
            if (::posix_spawnp(&pid, programa, nullptr, nullptr, argumentos, environ) == 0) FFilhos.push_back(pid);
        }
    }
    ~TMilProcessos() {
        for (const pid_t pid : FFilhos) ::kill(pid, SIGKILL);
        for (const pid_t pid : FFilhos) ::waitpid(pid, nullptr, 0);
    }
    TMilProcessos(const TMilProcessos&) = delete;
    TMilProcessos& operator=(const TMilProcessos&) = delete;

private:
    std::vector<pid_t> FFilhos;
};

void IniciarPelaBiblioteca(benchmark::State& AEstado) {
    std::vector<std::u16string> linhas;
    for (auto _ : AEstado) TOryUtilsSistema::ExecutarComandoComRetorno(u"/bin/true", linhas);
    AEstado.SetItemsProcessed(AEstado.iterations());
}

void IniciarPorPopen(benchmark::State& AEstado) {
    char linha[256];
    for (auto _ : AEstado) {
        std::FILE* comando = ::popen("/bin/true", "r");
        while (std::fgets(linha, sizeof linha, comando)) {
        }
        ::pclose(comando);
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

void Iniciar_Biblioteca(benchmark::State& AEstado) { IniciarPelaBiblioteca(AEstado); }
void Iniciar_Popen(benchmark::State& AEstado) { IniciarPorPopen(AEstado); }
void IniciarCom1GiB_Biblioteca(benchmark::State& AEstado) {
    const TMemoria memoria;
    IniciarPelaBiblioteca(AEstado);
}
void IniciarCom1GiB_Popen(benchmark::State& AEstado) {
    const TMemoria memoria;
    IniciarPorPopen(AEstado);
}

void Capturar_Biblioteca(benchmark::State& AEstado) {
    const TArquivo arquivo;
    for (auto _ : AEstado)
        benchmark::DoNotOptimize(TOryUtilsSistema::ExecutarComandoComRetorno(TArquivo::FComandoLargo));
    AEstado.SetItemsProcessed(AEstado.iterations());
}

void CapturarEmLista_Biblioteca(benchmark::State& AEstado) {
    const TArquivo arquivo;
    for (auto _ : AEstado) {
        std::vector<std::u16string> linhas;
        TOryUtilsSistema::ExecutarComandoComRetorno(TArquivo::FComandoLargo, linhas);
        benchmark::DoNotOptimize(linhas.data());
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

// The peers that give the same text: read by read of 255 bytes, trimmed, made UTF-16 and put behind the text.

void DecodificarPorCodecvt(std::string_view AParte, std::u16string& ATexto) {
    static const std::codecvt_utf8_utf16<char16_t> decodificador;
    char16_t texto[255];
    std::mbstate_t estado{};
    const char* lido = nullptr;
    char16_t* fim = nullptr;
    decodificador.in(estado, AParte.data(), AParte.data() + AParte.size(), lido, texto, std::end(texto), fim);
    ATexto.append(texto, fim);
}

// No decoding: right for ASCII alone.
void Alargar(std::string_view AParte, std::u16string& ATexto) { ATexto.append(AParte.begin(), AParte.end()); }

template <typename TJuntar>
std::u16string LerTextoPorRead255(TJuntar AJuntar) {
    constexpr std::string_view CBrancos = " \t\r\n";
    std::u16string texto;
    char parte[255];
    std::FILE* comando = ::popen(TArquivo::FComando, "r");
    std::size_t tem = 0;
    const auto juntar = [&] {
        const std::string_view bytes(parte, tem);
        const std::size_t inicio = bytes.find_first_not_of(CBrancos);
        if (inicio != bytes.npos) AJuntar(bytes.substr(inicio, bytes.find_last_not_of(CBrancos) + 1 - inicio), texto);
        tem = 0;
    };
    while (true) {
        const ssize_t lidos = ::read(::fileno(comando), parte + tem, sizeof parte - tem);
        if (lidos <= 0) break;
        tem += static_cast<std::size_t>(lidos);
        if (tem == sizeof parte) juntar();  // less than that only where the command has not written more yet
    }
    juntar();
    ::pclose(comando);
    return texto;
}

template <typename TJuntar>
void CapturarTextoPorRead255(benchmark::State& AEstado, TJuntar AJuntar) {
    const TArquivo arquivo;
    if (LerTextoPorRead255(AJuntar) != TOryUtilsSistema::ExecutarComandoComRetorno(TArquivo::FComandoLargo))
        AEstado.SkipWithError("the texts differ");
    for (auto _ : AEstado) benchmark::DoNotOptimize(LerTextoPorRead255(AJuntar));
    AEstado.SetItemsProcessed(AEstado.iterations());
}
void Capturar_Read255Decodificado(benchmark::State& AEstado) {
    CapturarTextoPorRead255(AEstado, DecodificarPorCodecvt);
}
void Capturar_Read255Alargado(benchmark::State& AEstado) { CapturarTextoPorRead255(AEstado, Alargar); }

// The bytes are read and forgotten.
void CapturarPorRead255(benchmark::State& AEstado) {
    const TArquivo arquivo;
    char parte[255];
    for (auto _ : AEstado) {
        std::FILE* comando = ::popen(TArquivo::FComando, "r");
        while (::read(::fileno(comando), parte, sizeof parte) > 0) benchmark::DoNotOptimize(parte);
        ::pclose(comando);
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}
void Capturar_Read255(benchmark::State& AEstado) { CapturarPorRead255(AEstado); }
void CapturarEmLista_Read255(benchmark::State& AEstado) { CapturarPorRead255(AEstado); }

void ListarMil_Biblioteca(benchmark::State& AEstado) {
    const TMilProcessos processos;
    for (auto _ : AEstado) benchmark::DoNotOptimize(TOryUtilsSistema::BuscarListaDeProcessosWindows(u""));
    AEstado.SetItemsProcessed(AEstado.iterations());
}

void ListarMil_PsE(benchmark::State& AEstado) {
    const TMilProcessos processos;
    for (auto _ : AEstado) benchmark::DoNotOptimize(std::system("ps -e >/dev/null"));
    AEstado.SetItemsProcessed(AEstado.iterations());
}

// The limits: what the system alone takes.

void Iniciar_Vfork(benchmark::State& AEstado) {
    char programa[] = "/bin/true";
    char* const argumentos[] = {programa, nullptr};
    for (auto _ : AEstado) {
        const pid_t pid = ::vfork();
        if (pid == 0) {
            ::execv(programa, argumentos);
            ::_exit(127);
        }
        ::waitpid(pid, nullptr, 0);
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

void Capturar_Read64K(benchmark::State& AEstado) {
    const TArquivo arquivo;
    std::vector<char> parte(64 * 1024);
    for (auto _ : AEstado) {
        std::FILE* comando = ::popen(TArquivo::FComando, "r");
        while (::read(::fileno(comando), parte.data(), parte.size()) > 0) benchmark::DoNotOptimize(parte.data());
        ::pclose(comando);
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

/// The files of all processes opened and read, as text that nobody understands.
void ListarMil_LerArquivos(benchmark::State& AEstado) {
    const TMilProcessos processos;
    for (auto _ : AEstado) {
        DIR* pasta = ::opendir("/proc");
        while (const dirent* item = ::readdir(pasta)) {
            if (item->d_name[0] < '0' || item->d_name[0] > '9') continue;
            for (const char* nome : {"/stat", "/cmdline"}) {
                char conteudo[4096];
                const int arquivo = ::open((std::string("/proc/") + item->d_name + nome).c_str(), O_RDONLY | O_CLOEXEC);
                if (arquivo < 0) continue;
                benchmark::DoNotOptimize(::read(arquivo, conteudo, sizeof conteudo));
                ::close(arquivo);
            }
        }
        ::closedir(pasta);
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

BENCHMARK(Iniciar_Vfork)->UseRealTime();
BENCHMARK(Capturar_Read64K)->UseRealTime();
BENCHMARK(ListarMil_LerArquivos)->UseRealTime();
BENCHMARK(Iniciar_Biblioteca)->UseRealTime();
BENCHMARK(Iniciar_Popen)->UseRealTime();
BENCHMARK(IniciarCom1GiB_Biblioteca)->UseRealTime();
BENCHMARK(IniciarCom1GiB_Popen)->UseRealTime();
BENCHMARK(Capturar_Biblioteca)->UseRealTime();
BENCHMARK(Capturar_Read255Decodificado)->UseRealTime();
BENCHMARK(Capturar_Read255Alargado)->UseRealTime();
BENCHMARK(Capturar_Read255)->UseRealTime();
BENCHMARK(CapturarEmLista_Biblioteca)->UseRealTime();
BENCHMARK(CapturarEmLista_Read255)->UseRealTime();
BENCHMARK(ListarMil_Biblioteca)->UseRealTime();
BENCHMARK(ListarMil_PsE)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
