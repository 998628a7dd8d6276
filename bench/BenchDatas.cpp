// BuscarDataFormatada beside strftime of the same date, its fields ready.

#include "oryutils/dates/OryUtilsDatas.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include <benchmark/benchmark.h>

#include <ctime>

namespace {

using OryUtils::TOryUtilsDatas;

void Datas_Biblioteca(benchmark::State& AEstado) {
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    double data = OryUtils::CodificarData(2024, 3, 5);
    for (auto _ : AEstado) {
        benchmark::DoNotOptimize(TOryUtilsDatas::BuscarDataFormatada(data));
        data += 1;
        if (data > 80000) data = 10000;
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

void Datas_Strftime(benchmark::State& AEstado) {
    std::tm partes{};
    partes.tm_year = 124;
    partes.tm_mon = 2;
    partes.tm_mday = 5;
    char texto[32];
    for (auto _ : AEstado) {
        benchmark::DoNotOptimize(std::strftime(texto, sizeof texto, "%m/%d/%Y", &partes));
        benchmark::DoNotOptimize(texto);
        partes.tm_mday = partes.tm_mday % 28 + 1;
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

/// The limit: ten characters in a text of their own.
void Datas_Copia(benchmark::State& AEstado) {
    const std::u16string texto = u"03/05/2024";
    for (auto _ : AEstado) benchmark::DoNotOptimize(std::u16string(texto));
    AEstado.SetItemsProcessed(AEstado.iterations());
}

BENCHMARK(Datas_Copia);
BENCHMARK(Datas_Biblioteca);
BENCHMARK(Datas_Strftime);

}  // namespace

BENCHMARK_MAIN();
