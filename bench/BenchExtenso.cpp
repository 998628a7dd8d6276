// Amounts in words against a plain version that concatenates strings. extenso.mjs measures the same amounts.
#include "oryutils/text/UnOryUtilsMatematica.hpp"

#include <benchmark/benchmark.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace OryUtils;

/// Amounts of up to a million with cents, in the order of a simple sequence.
std::vector<Extended> MontarValores() {
    std::vector<Extended> valores;
    for (std::uint64_t i = 1; i <= 1000; ++i) valores.push_back(static_cast<Extended>(i * 7919371 % 100'000'000) / 100);
    return valores;
}
const std::vector<Extended> GValores = MontarValores();

std::u16string GrupoSimples(int AValor) {
    static const std::vector<std::u16string> unidades{
        u"",    u"UM",   u"DOIS", u"TRES",  u"QUATRO",  u"CINCO",  u"SEIS",      u"SETE",      u"OITO",    u"NOVE",
        u"DEZ", u"ONZE", u"DOZE", u"TREZE", u"CATORZE", u"QUINZE", u"DEZESSEIS", u"DEZESSETE", u"DEZOITO", u"DEZENOVE"};
    static const std::vector<std::u16string> dezenas{u"",          u"",         u"VINTE",   u"TRINTA",  u"QUARENTA",
                                                     u"CINQUENTA", u"SESSENTA", u"SETENTA", u"OITENTA", u"NOVENTA"};
    static const std::vector<std::u16string> centenas{
        u"",           u"CENTO",      u"DUZENTOS",   u"TREZENTOS",  u"QUATROCENTOS",
        u"QUINHENTOS", u"SEISCENTOS", u"SETECENTOS", u"OITOCENTOS", u"NOVECENTOS"};
    if (AValor == 100) return u"CEM";
    std::u16string texto;
    if (AValor >= 100) {
        texto = centenas[static_cast<std::size_t>(AValor / 100)];
        if (AValor % 100 != 0) texto = texto + u" E ";
    }
    const int resto = AValor % 100;
    if (resto < 20) return texto + unidades[static_cast<std::size_t>(resto)];
    texto = texto + dezenas[static_cast<std::size_t>(resto / 10)];
    if (resto % 10 != 0) texto = texto + u" E " + unidades[static_cast<std::size_t>(resto % 10)];
    return texto;
}

std::u16string ExtensoSimples(Extended AValor) {
    const auto centavos = static_cast<std::int64_t>(std::floor(AValor * 100 + 0.5L));
    if (centavos == 0) return u"ZERO REAIS";
    const auto inteiro = centavos / 100;
    std::u16string texto;
    if (inteiro >= 1000) texto = GrupoSimples(static_cast<int>(inteiro / 1000)) + u" MIL";
    if (inteiro % 1000 != 0) {
        if (!texto.empty()) texto = texto + u" E ";
        texto = texto + GrupoSimples(static_cast<int>(inteiro % 1000));
    }
    if (inteiro > 0) texto = texto + (inteiro == 1 ? u" REAL" : u" REAIS");
    if (centavos % 100 == 0) return texto;
    if (inteiro > 0) texto = texto + u" E ";
    texto = texto + GrupoSimples(static_cast<int>(centavos % 100)) + (centavos % 100 == 1 ? u" CENTAVO" : u" CENTAVOS");
    return inteiro == 0 ? texto + u" DE REAL" : texto;
}

template <std::u16string (*AConverter)(Extended)>
void Medir(benchmark::State& AEstado) {
    for (auto _ : AEstado)
        for (const Extended valor : GValores) benchmark::DoNotOptimize(AConverter(valor));
    AEstado.SetItemsProcessed(AEstado.iterations() * static_cast<std::int64_t>(GValores.size()));
}

/// What no writing of these words can do without: as many texts as long.
void CopiarTextos(benchmark::State& AEstado) {
    std::vector<std::u16string> textos;
    for (const Extended valor : GValores) textos.push_back(TOryUtilsMatematica::BuscarValorPorExtenso(valor));
    for (auto _ : AEstado)
        for (const std::u16string& texto : textos) benchmark::DoNotOptimize(std::u16string(texto));
    AEstado.SetItemsProcessed(AEstado.iterations() * static_cast<std::int64_t>(textos.size()));
}

BENCHMARK(CopiarTextos)->Name("Extenso_Copia");
BENCHMARK(Medir<TOryUtilsMatematica::BuscarValorPorExtenso>)->Name("Extenso_Biblioteca");
BENCHMARK(Medir<ExtensoSimples>)->Name("Extenso_Concatenacao");

}  // namespace

int main(int argc, char** argv) {
    for (const Extended valor : GValores)
        if (ExtensoSimples(valor) != TOryUtilsMatematica::BuscarValorPorExtenso(valor)) return EXIT_FAILURE;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
