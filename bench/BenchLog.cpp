// The process log beside spdlog's file logger, by the wall clock and in turns; on both systems.
//   bench_Log ROUNDS FOLDER    writes files below FOLDER; prints "name nanoseconds", for one line, for each round of
//   each LogLinhas: 10,000 lines, saved (flushed) after each one, by append. UmaEscrita is the limit: one write of each
//   line. LogReescrito: 2,000 lines in the mode that writes the whole file each time.
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/files/UnOryUtilsArquivoLogAmbiente.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <string>

namespace {

using namespace OryUtils;
namespace fs = std::filesystem;

constexpr char CMensagem[] = "Registro importado com sucesso do arquivo de clientes, sem avisos";
constexpr char16_t CMensagem16[] = u"Registro importado com sucesso do arquivo de clientes, sem avisos";
constexpr int CLinhas = 10'000;
constexpr int CLinhasReescritas = 2'000;

/// The real clock; the rest of the header costs nothing.
struct TAmbienteDeBench final : TAmbienteDoLog {
    TDateTime BuscarAgora() override { return Agora(); }
    std::u16string BuscarAplicacao() override { return u"bench"; }
    std::u16string BuscarVersao() override { return {}; }
    std::u16string BuscarIP() override { return {}; }
    std::u16string BuscarNomeDaMaquina() override { return {}; }
};

void EscreverLog(const fs::path& AArquivo, TModoGravacao AModo, int ALinhas) {
    TAmbienteDeBench ambiente;
    TOryUtilsArquivoLog log(AArquivo.u16string(), ambiente);
    log.SetModoGravacao(AModo);
    log.SetSalvarAutomaticamente(true);
    for (int i = 0; i < ALinhas; ++i) log.Adicionar(CMensagem16, clWindowText);
}

void EscreverSpdlog(const fs::path& AArquivo, int ALinhas) {
    const auto log = spdlog::basic_logger_mt("bench", AArquivo.string(), true);
    log->set_pattern("[%d/%m/%Y %H:%M:%S]: %v");
    log->flush_on(spdlog::level::info);
    for (int i = 0; i < ALinhas; ++i) log->info(CMensagem);
    spdlog::drop("bench");
}

void EscreverUmaAUma(const fs::path& AArquivo, int ALinhas) {
    const std::string linha = "[21/11/2026 14:07:05]: " + std::string(CMensagem) + "\n";
    Interno::TFluxo fluxo;
    fluxo.AbrirParaReescrever(AArquivo.string());
    fluxo.CortarAqui();
    for (int i = 0; i < ALinhas; ++i) fluxo.Escrever(linha);
    fluxo.Fechar();
}

template <typename TEscrever>
void Medir(const std::string& ANome, int ALinhas, TEscrever AEscrever) {
    const auto inicio = std::chrono::steady_clock::now();
    AEscrever();
    const std::chrono::duration<double, std::nano> tempo = std::chrono::steady_clock::now() - inicio;
    std::printf("%s %.1f\n", ANome.c_str(), tempo.count() / ALinhas);
}

}  // namespace

int main(int AQuantos, char** AArgumentos) {
    if (AQuantos != 3) return EXIT_FAILURE;
    const fs::path pasta = fs::path(AArgumentos[2]) / "bench_log";
    fs::create_directories(pasta);
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const std::string linhas = "LogLinhas" ORY_SISTEMA_MEDIDO;
    const std::string reescrito = "LogReescrito" ORY_SISTEMA_MEDIDO;
    for (int rodada = 0; rodada < std::atoi(AArgumentos[1]); ++rodada) {
        Medir(linhas + "_Biblioteca", CLinhas, [&] { EscreverLog(pasta / "biblioteca", mgAcrescentar, CLinhas); });
        Medir(linhas + "_spdlog", CLinhas, [&] { EscreverSpdlog(pasta / "spdlog.log", CLinhas); });
        Medir(linhas + "_UmaEscrita", CLinhas, [&] { EscreverUmaAUma(pasta / "escrita.log", CLinhas); });
    }
    Medir(reescrito + "_Biblioteca", CLinhasReescritas,
          [&] { EscreverLog(pasta / "biblioteca", mgReescrever, CLinhasReescritas); });
    Medir(reescrito + "_spdlog", CLinhasReescritas, [&] { EscreverSpdlog(pasta / "spdlog.log", CLinhasReescritas); });
    fs::remove_all(pasta);
    return EXIT_SUCCESS;
}
