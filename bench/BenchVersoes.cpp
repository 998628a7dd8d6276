// 100,000 versions sorted, against std::sort of their numbers, which were read beforehand.
#include "oryutils/files/OryUtilsFiles.hpp"

#include "UmaLeitura.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace {

using namespace OryUtils;

constexpr int CQuantidade = 100'000;

/// Of four numbers, as a house gives them out: a few major ones, many builds.
std::vector<std::u16string> MontarVersoes() {
    std::mt19937 sorteio(2026);
    std::vector<std::u16string> versoes;
    for (int i = 0; i < CQuantidade; ++i) {
        const std::string texto = std::to_string(sorteio() % 20) + "." + std::to_string(sorteio() % 100) + "." +
                                  std::to_string(sorteio() % 1000) + "." + std::to_string(sorteio() % 65536);
        versoes.emplace_back(texto.begin(), texto.end());
    }
    return versoes;
}

void OrdenarVersoes_Biblioteca(benchmark::State& AEstado) {
    const auto versoes = MontarVersoes();
    for (auto _ : AEstado) {
        AEstado.PauseTiming();
        auto lista = versoes;
        AEstado.ResumeTiming();
        TOryUtilsFiles::OrdenarListaDeVersoes(lista);
        benchmark::DoNotOptimize(lista.data());
        AEstado.PauseTiming();
        lista.clear();
        lista.shrink_to_fit();
        AEstado.ResumeTiming();
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * CQuantidade);
}
BENCHMARK(OrdenarVersoes_Biblioteca)->Unit(benchmark::kMillisecond);

void OrdenarVersoes_StdSort(benchmark::State& AEstado) {
    std::vector<std::uint64_t> numeros;
    for (const auto& versao : MontarVersoes()) {
        std::uint16_t maior, menor, release, build;
        TOryUtilsFiles::DividirVersao(versao, maior, menor, release, build);
        numeros.push_back(std::uint64_t{maior} << 48 | std::uint64_t{menor} << 32 | std::uint64_t{release} << 16 |
                          build);
    }
    for (auto _ : AEstado) {
        AEstado.PauseTiming();
        auto lista = numeros;
        AEstado.ResumeTiming();
        std::sort(lista.begin(), lista.end());
        benchmark::DoNotOptimize(lista.data());
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * CQuantidade);
}
BENCHMARK(OrdenarVersoes_StdSort)->Unit(benchmark::kMillisecond);

/// The limit: every character of the list read once.
void OrdenarVersoes_UmaLeitura(benchmark::State& AEstado) {
    const auto versoes = MontarVersoes();
    for (auto _ : AEstado) {
        std::uint64_t soma = 0;
        for (const std::u16string& versao : versoes) soma += LerUmaVez(versao);
        benchmark::DoNotOptimize(soma);
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * CQuantidade);
}
BENCHMARK(OrdenarVersoes_UmaLeitura)->Unit(benchmark::kMillisecond);

void Comparar(benchmark::State& AEstado) {
    for (auto _ : AEstado)
        benchmark::DoNotOptimize(TOryUtilsFiles::CompararVersao(u"10.20.300.4000", u"10.20.300.4001"));
}
BENCHMARK(Comparar);

}  // namespace

BENCHMARK_MAIN();
