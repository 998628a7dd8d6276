// Text operations at 1 MB and 10 MB: the time for each character must stay the same.

#include "oryutils/text/OryUtilsStrings.hpp"

#include "UmaLeitura.hpp"

#include <benchmark/benchmark.h>

#include <string>

namespace {

using OryUtils::TOryUtilsStrings;

std::u16string CriarTexto(std::size_t ATamanho) {
    constexpr std::u16string_view CLinha =
        u"Comercial São João Ltda.; 11.222.333/0001-81; D'Ávila, nº 123 - São Paulo;";
    std::u16string texto;
    texto.reserve(ATamanho + CLinha.size());
    while (texto.size() < ATamanho) texto += CLinha;
    texto.resize(ATamanho);
    return texto;
}

template <typename TOperacao>
void Medir(benchmark::State& AEstado, TOperacao AOperacao) {
    const std::u16string texto = CriarTexto(static_cast<std::size_t>(AEstado.range(0)));
    for (auto _ : AEstado) benchmark::DoNotOptimize(AOperacao(texto));
    AEstado.SetItemsProcessed(AEstado.iterations() * AEstado.range(0));  // characters
}

void Limpar(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) { return TOryUtilsStrings::LimparTexto(t); });
}
void RemoverAcentos(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) { return TOryUtilsStrings::RemoverAcentos(t); });
}
void Dividir(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) {
        return TOryUtilsStrings::ConverterTextoComDelimitadorParaStringList(t, u";");
    });
}
void Substituir(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) {
        return TOryUtilsStrings::SubstituirMultiplosTextos(t, {u"São", u"Ltda."}, {u"Santo", u"S.A."}, true);
    });
}
void SubstituirPorPassos(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) { return TOryUtilsStrings::SubstituirCaracteres(t, u"São", u"X"); });
}

// The peer: the same text copied into memory of its own; the limit, each character read once.
void Copiar(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) { return std::u16string(t); });
}
void Ler(benchmark::State& AEstado) {
    Medir(AEstado, [](const std::u16string& t) { return LerUmaVez(t); });
}

BENCHMARK(Copiar)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(Ler)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(Limpar)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(RemoverAcentos)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(Dividir)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(Substituir)->Arg(1'000'000)->Arg(10'000'000);
BENCHMARK(SubstituirPorPassos)->Arg(1'000'000)->Arg(10'000'000);

}  // namespace

BENCHMARK_MAIN();
