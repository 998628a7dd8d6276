// Registry numbers with their marks: the mask engine beside what one would write by hand for a single number.

#include "oryutils/text/OryUtilsStrings.hpp"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

using OryUtils::TOryUtilsStrings;

constexpr std::size_t CNumeros = 1024;

std::vector<std::u16string> CriarNumeros(std::size_t ADigitos) {
    std::mt19937 sorteio(20260705);
    std::vector<std::u16string> numeros(CNumeros);
    for (auto& numero : numeros)
        for (std::size_t i = 0; i < ADigitos; ++i) numero += static_cast<char16_t>(u'0' + sorteio() % 10);
    return numeros;
}

std::u16string FormatarCnpjAMao(const std::u16string& ANumero) {
    if (ANumero.size() != 14) return ANumero;
    std::u16string texto;
    texto.reserve(18);
    texto.append(ANumero, 0, 2).append(u".").append(ANumero, 2, 3).append(u".").append(ANumero, 5, 3);
    return texto.append(u"/").append(ANumero, 8, 4).append(u"-").append(ANumero, 12, 2);
}
std::u16string FormatarCpfAMao(const std::u16string& ANumero) {
    if (ANumero.size() != 11) return ANumero;
    std::u16string texto;
    texto.reserve(14);
    texto.append(ANumero, 0, 3).append(u".").append(ANumero, 3, 3).append(u".").append(ANumero, 6, 3);
    return texto.append(u"-").append(ANumero, 9, 2);
}
std::u16string FormatarCnpj(const std::u16string& ANumero) {
    return TOryUtilsStrings::FormatarInscricaoFederal(OryTypes::tiCNPJ, ANumero);
}
std::u16string FormatarCpf(const std::u16string& ANumero) {
    return TOryUtilsStrings::FormatarInscricaoFederal(OryTypes::tiCPF, ANumero);
}

template <std::size_t ADigitos, std::u16string (*AFormatar)(const std::u16string&),
          std::u16string (*AReferencia)(const std::u16string&)>
void Medir(benchmark::State& AEstado) {
    const auto numeros = CriarNumeros(ADigitos);
    for (const auto& numero : numeros)
        if (AFormatar(numero) != AReferencia(numero)) std::abort();  // not the same work
    for (auto _ : AEstado)
        for (const auto& numero : numeros) benchmark::DoNotOptimize(AFormatar(numero));
    AEstado.SetItemsProcessed(AEstado.iterations() * static_cast<std::int64_t>(CNumeros));
}

BENCHMARK(Medir<14, FormatarCnpj, FormatarCnpjAMao>)->Name("FormatarCnpj_Biblioteca");
BENCHMARK(Medir<14, FormatarCnpjAMao, FormatarCnpjAMao>)->Name("FormatarCnpj_AMao");
BENCHMARK(Medir<11, FormatarCpf, FormatarCpfAMao>)->Name("FormatarCpf_Biblioteca");
BENCHMARK(Medir<11, FormatarCpfAMao, FormatarCpfAMao>)->Name("FormatarCpf_AMao");

}  // namespace

BENCHMARK_MAIN();
