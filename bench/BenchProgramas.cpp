// Whole processes, from their start to their end, by the wall clock and in turns. Prints "name nanoseconds" for each
// round of each.
//   bench_Programas RODADAS NOME PROGRAMA [ARGUMENTO]... [-- NOME PROGRAMA [ARGUMENTO]...]...
//   bench_Programas --cnpjs=ARQUIVO    writes ten million formatted CNPJs below a header, one in fifty wrong
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

struct TPrograma {
    std::string Nome;
    std::vector<char*> Argumentos;
};

std::vector<TPrograma> LerProgramas(char** AArgumentos) {
    std::vector<TPrograma> programas;
    while (*AArgumentos) {
        TPrograma& programa = programas.emplace_back(TPrograma{*AArgumentos++, {}});
        while (*AArgumentos && std::string_view(*AArgumentos) != "--") programa.Argumentos.push_back(*AArgumentos++);
        programa.Argumentos.push_back(nullptr);
        if (*AArgumentos) ++AArgumentos;
    }
    return programas;
}

/// Runs it with its output thrown away. Nanoseconds, or less than 0 when it could not start or failed; status 1 is an
/// answer (some numbers are invalid).
double Rodar(const TPrograma& APrograma, posix_spawn_file_actions_t& AAcoes) {
    const auto inicio = std::chrono::steady_clock::now();
    pid_t pid = 0;
    int status = 0;
    if (posix_spawnp(&pid, APrograma.Argumentos[0], &AAcoes, nullptr, APrograma.Argumentos.data(), environ)) return -1;
    if (waitpid(pid, &status, 0) != pid || !WIFEXITED(status) || WEXITSTATUS(status) > 1) return -1;
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - inicio).count();
}

void EscreverCnpjs(const char* AArquivo) {
    static constexpr int CPesos[] = {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
    std::FILE* arquivo = std::fopen(AArquivo, "wb");
    if (!arquivo) std::exit(EXIT_FAILURE);
    std::fputs("cnpj\n", arquivo);
    for (long n = 0; n < 10'000'000; ++n) {
        char d[16];
        std::snprintf(d, sizeof d, "%08ld%04ld", (n * 7919 + 13) % 100'000'000, n % 9 + 1);
        int um = 0, dois = 0;
        for (int i = 0; i < 12; ++i) {
            um += (d[i] - '0') * CPesos[i + 1];
            dois += (d[i] - '0') * CPesos[i];
        }
        const int a = um % 11 < 2 ? 0 : 11 - um % 11;
        dois += a * CPesos[12];
        int b = dois % 11 < 2 ? 0 : 11 - dois % 11;
        if (n % 50 == 0) b = (b + 1) % 10;
        std::fprintf(arquivo, "%.2s.%.3s.%.3s/%.4s-%d%d\n", d, d + 2, d + 5, d + 8, a, b);
    }
    if (std::fclose(arquivo)) std::exit(EXIT_FAILURE);
}

}  // namespace

int main(int AQuantos, char** AArgumentos) {
    constexpr std::string_view CCnpjs = "--cnpjs=";
    if (AQuantos == 2 && std::string_view(AArgumentos[1]).starts_with(CCnpjs)) {
        EscreverCnpjs(AArgumentos[1] + CCnpjs.size());
        return EXIT_SUCCESS;
    }
    if (AQuantos < 4) return EXIT_FAILURE;
    const std::vector<TPrograma> programas = LerProgramas(AArgumentos + 2);
    posix_spawn_file_actions_t acoes;
    posix_spawn_file_actions_init(&acoes);
    posix_spawn_file_actions_addopen(&acoes, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<bool> falhou(programas.size());
    for (int rodada = -1; rodada < std::atoi(AArgumentos[1]); ++rodada)  // the first one brings the files to memory
        for (std::size_t i = 0; i < programas.size(); ++i) {
            if (falhou[i]) continue;
            const double tempo = Rodar(programas[i], acoes);
            falhou[i] = tempo < 0;
            if (falhou[i])
                std::fprintf(stderr, "%s did not run\n", programas[i].Nome.c_str());
            else if (rodada >= 0)
                std::printf("%s %.0f\n", programas[i].Nome.c_str(), tempo);
        }
    posix_spawn_file_actions_destroy(&acoes);
}
