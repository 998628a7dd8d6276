// The process log beside spdlog's file logger. Each item is one line.
//   LogLinhas: 10,000 lines, saved (flushed) after each one; Biblioteca appends what is new, Reescrevendo is the mode
//     that writes the whole file each time, for 2,000 lines.
//   LogInteiro: 100,000 lines saved once, beside one write of the same text.
// "bytes" is what was written for each byte that the file has at the end. --pasta=X writes below X.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/UnOryUtilsArquivoLog.hpp"
#include "oryutils/files/interno/AmbienteDoLog.hpp"
#include "oryutils/platform/Fluxo.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>
#include <string>
#include <string_view>

namespace {

using namespace OryUtils;
namespace fs = std::filesystem;

fs::path GPasta = fs::temp_directory_path() / "ory_bench_log";

constexpr std::string_view CMensagem = "Registro importado com sucesso do arquivo de clientes, sem avisos";

/// The real clock, and a count of what is written.
struct TAmbienteDeBench final : TAmbienteDoLog {
    std::size_t Bytes = 0;
    TDateTime BuscarAgora() override { return Agora(); }
    std::u16string BuscarAplicacao() override { return u"bench"; }
    std::u16string BuscarVersao() override { return {}; }
    std::u16string BuscarIP() override { return {}; }
    std::u16string BuscarNomeDaMaquina() override { return {}; }
    void AoEscrever(std::size_t ABytes) override { Bytes += ABytes; }
};

struct TLog : TOryUtilsArquivoLog {
    using TOryUtilsArquivoLog::SalvarArquivoLog;
    using TOryUtilsArquivoLog::TOryUtilsArquivoLog;
};

void SalvarCadaLinha(benchmark::State& AEstado, TModoGravacao AModo, int ALinhas) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const std::u16string mensagem = DeUtf8(CMensagem);
    std::size_t bytes = 0;
    for (auto _ : AEstado) {
        TAmbienteDeBench ambiente;
        TLog log((GPasta / "biblioteca").u16string(), ambiente);
        log.SetModoGravacao(AModo);
        log.SetSalvarAutomaticamente(true);
        for (int i = 0; i < ALinhas; ++i) log.Adicionar(mensagem, clWindowText);
        bytes = ambiente.Bytes;
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * ALinhas);
    AEstado.counters["bytes"] =
        static_cast<double>(bytes) / static_cast<double>(fs::file_size(GPasta / "biblioteca.log"));
}

void LogLinhas_Biblioteca(benchmark::State& AEstado) { SalvarCadaLinha(AEstado, mgAcrescentar, 10'000); }
void LogReescrito_Biblioteca(benchmark::State& AEstado) { SalvarCadaLinha(AEstado, mgReescrever, 2'000); }

void SpdlogCadaLinha(benchmark::State& AEstado, int ALinhas) {
    for (auto _ : AEstado) {
        auto log = spdlog::basic_logger_mt("bench", (GPasta / "spdlog.log").string(), true);
        log->set_pattern("[%d/%m/%Y %H:%M:%S]: %v");
        log->flush_on(spdlog::level::info);
        for (int i = 0; i < ALinhas; ++i) log->info(CMensagem);
        spdlog::drop("bench");
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * ALinhas);
    AEstado.counters["bytes"] = 1;
}

void LogLinhas_spdlog(benchmark::State& AEstado) { SpdlogCadaLinha(AEstado, 10'000); }
void LogReescrito_spdlog(benchmark::State& AEstado) { SpdlogCadaLinha(AEstado, 2'000); }

// The limit: one write of each line to an open file.
void LogLinhas_UmaEscrita(benchmark::State& AEstado) {
    const std::string linha = "[21/11/2026 14:07:05]: " + std::string(CMensagem) + "\n";
    const std::string nome = (GPasta / "escrita.log").string();
    for (auto _ : AEstado) {
        Interno::TFluxo fluxo;
        fluxo.CriarOuEsvaziar(nome);
        for (int i = 0; i < 10'000; ++i) fluxo.Escrever(linha);
        fluxo.Fechar();
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * 10'000);
    AEstado.counters["bytes"] = 1;
}

constexpr int CInteiro = 100'000;

void LogInteiro_Biblioteca(benchmark::State& AEstado) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    TAmbienteDeBench ambiente;
    TLog log((GPasta / "inteiro").u16string(), ambiente);
    const std::u16string mensagem = DeUtf8(CMensagem);
    for (int i = 0; i < CInteiro; ++i) log.Adicionar(mensagem, clWindowText);
    for (auto _ : AEstado) {
        ambiente.Bytes = 0;
        log.SalvarArquivoLog();
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * CInteiro);
    AEstado.counters["bytes"] =
        static_cast<double>(ambiente.Bytes) / static_cast<double>(fs::file_size(GPasta / "inteiro.log"));
}

// With the lines added too: what a batch process pays for its log as a whole.
void LogInteiro_BibliotecaComLinhas(benchmark::State& AEstado) {
    const TFormatosTemporarios formatos(BuscarFormatosBrasileiros());
    const std::u16string mensagem = DeUtf8(CMensagem);
    for (auto _ : AEstado) {
        TAmbienteDeBench ambiente;
        TLog log((GPasta / "inteiro").u16string(), ambiente);
        for (int i = 0; i < CInteiro; ++i) log.Adicionar(mensagem, clWindowText);
        log.SalvarArquivoLog();
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * CInteiro);
    AEstado.counters["bytes"] = 1;
}

void LogInteiro_UmaEscrita(benchmark::State& AEstado) {
    std::string texto;
    for (int i = 0; i < CInteiro; ++i) texto.append("[21/11/2026 14:07:05]: ").append(CMensagem).append("\n");
    const std::string nome = (GPasta / "escrita.log").string();
    for (auto _ : AEstado) {
        Interno::TFluxo fluxo;
        fluxo.CriarOuEsvaziar(nome);
        fluxo.Escrever(texto);
        fluxo.Fechar();
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * CInteiro);
    AEstado.counters["bytes"] = 1;
}

BENCHMARK(LogLinhas_Biblioteca)->UseRealTime();
BENCHMARK(LogLinhas_UmaEscrita)->UseRealTime();
BENCHMARK(LogLinhas_spdlog)->UseRealTime();
BENCHMARK(LogReescrito_Biblioteca)->UseRealTime();
BENCHMARK(LogReescrito_spdlog)->UseRealTime();
BENCHMARK(LogInteiro_Biblioteca)->UseRealTime();
BENCHMARK(LogInteiro_UmaEscrita)->UseRealTime();
BENCHMARK(LogInteiro_BibliotecaComLinhas)->UseRealTime();

}  // namespace

int main(int AQuantos, char** AArgumentos) {
    constexpr std::string_view COpcao = "--pasta=";
    for (int i = 1; i < AQuantos; ++i)
        if (const std::string_view argumento = AArgumentos[i]; argumento.starts_with(COpcao))
            GPasta = fs::path(argumento.substr(COpcao.size())) / "ory_bench_log";
    benchmark::Initialize(&AQuantos, AArgumentos);
    fs::create_directories(GPasta);
    benchmark::RunSpecifiedBenchmarks();
    fs::remove_all(GPasta);
}
