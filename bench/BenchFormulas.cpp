// Formulas typed once (set and evaluate) against muParser, from "2+3*4" to 64 operators with 8 variables and nested
// functions; and a sum of 1,000 operators against reading its numbers and rounding its partial sums. formulas.mjs
// measures the same formulas.
#include "oryutils/runtime/Formatos.hpp"
#include "oryutils/text/OryUtilsFormulas.hpp"

#include "UmaLeitura.hpp"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <muParser.h>
#include <string>
#include <vector>

namespace {

using namespace OryUtils;

constexpr const char* CNomes[] = {"A", "B", "C", "D", "F", "G", "H", "K"};
constexpr double CValores[] = {1.5, 2, 1200.75, 3.25, 7, 0.5, 12, 100};

/// Each formula in two forms, so that every set is of another text. Written with "." and ",", as the rivals want them.
struct TFormula {
    const char* Nome;
    std::array<std::string, 2> Textos;
};

TFormula MontarMedia() {
    const std::string texto = "(A+B)*3-C/D+max(F,G*2)+";
    return {"Media", {texto + "10", texto + "11"}};
}

/// 64 operators: eight pieces of eight.
TFormula MontarGrande() {
    std::string texto;
    for (int i = 1; i <= 8; ++i) {
        if (i > 1) texto += "+";
        texto += "A*" + std::to_string(i) + "+(B-C/D)*2-max(F*3," + "sqrt(G+abs(H-20)))";
    }
    return {"Grande", {texto + "+K", texto + "+K*1"}};
}

const std::array<TFormula, 3> GFormulas{TFormula{"Pequena", {"2+3*4", "2+3*5"}}, MontarMedia(), MontarGrande()};

std::u16string ParaBiblioteca(std::string ATexto) {
    for (std::size_t p; (p = ATexto.find("sqrt(")) != std::string::npos;) ATexto.replace(p, 5, "SQR(");
    std::u16string texto;
    for (const char c : ATexto)
        texto += c == ','               ? u';'
                 : c == '.'             ? u','
                 : c >= 'a' && c <= 'z' ? static_cast<char16_t>(c - 32)
                                        : static_cast<char16_t>(c);
    return texto;
}

void Biblioteca(benchmark::State& AEstado, const TFormula& ACaso) {
    TOryUtilsFormulas formula;
    for (std::size_t i = 0; i < std::size(CNomes); ++i)
        formula.AdicionarVariavel(std::u16string(1, static_cast<char16_t>(*CNomes[i])), CValores[i]);
    const std::array<std::u16string, 2> textos{ParaBiblioteca(ACaso.Textos[0]), ParaBiblioteca(ACaso.Textos[1])};
    std::size_t i = 0;
    for (auto _ : AEstado) {
        formula.SetExpressao(textos[i ^= 1]);
        benchmark::DoNotOptimize(formula.GetValor());
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

struct TMuParser {
    TMuParser() {
        for (std::size_t i = 0; i < Valores.size(); ++i) {
            Valores[i] = CValores[i];
            Parser.DefineVar(CNomes[i], &Valores[i]);
        }
    }
    mu::Parser Parser;
    std::array<double, std::size(CNomes)> Valores{};
};

void MuParser(benchmark::State& AEstado, const TFormula& ACaso) {
    TMuParser muparser;
    std::size_t i = 0;
    for (auto _ : AEstado) {
        muparser.Parser.SetExpr(ACaso.Textos[i ^= 1]);
        benchmark::DoNotOptimize(muparser.Parser.Eval());
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

/// The limit: the characters of the formula read once.
void UmaLeitura(benchmark::State& AEstado, const TFormula& ACaso) {
    std::size_t i = 0;
    for (auto _ : AEstado) benchmark::DoNotOptimize(LerUmaVez(ACaso.Textos[i ^= 1]));
    AEstado.SetItemsProcessed(AEstado.iterations());
}

// The sum.

std::vector<std::string> MontarParcelas() {
    std::vector<std::string> parcelas;
    for (int i = 0; i <= 1000; ++i)
        parcelas.push_back(std::to_string(i * 7919 % 10'000) + "." + std::to_string(10 + i * 37 % 90));
    return parcelas;
}
const std::vector<std::string> GParcelas = MontarParcelas();

void SomaBiblioteca(benchmark::State& AEstado) {
    std::array<std::u16string, 2> textos;
    for (const std::string& parcela : GParcelas)
        textos[0] += ParaBiblioteca(parcela) + (&parcela == &GParcelas.back() ? u"" : u"+");
    textos[1] = textos[0] + u"0";
    TOryUtilsFormulas formula;
    std::size_t i = 0;
    for (auto _ : AEstado) {
        formula.SetExpressao(textos[i ^= 1]);
        benchmark::DoNotOptimize(formula.GetValor());
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

/// What no evaluation can do without: the numbers read, and each partial sum rounded to its text.
void SomaSeparada(benchmark::State& AEstado) {
    for (auto _ : AEstado) {
        Extended soma = 0;
        for (const std::string& parcela : GParcelas) {
            double valor = 0;
            std::from_chars(parcela.data(), parcela.data() + parcela.size(), valor);
            std::array<char16_t, CTamanhoMaximoExtended> texto;
            benchmark::DoNotOptimize(EscreverExtended(soma += valor, texto, u','));
        }
    }
    AEstado.SetItemsProcessed(AEstado.iterations());
}

/// For formulas.mjs: the variables, then each formula with its other form and its value.
void EscreverFormulas() {
    for (std::size_t i = 0; i < std::size(CNomes); ++i) std::printf("variavel\t%s\t%.17g\n", CNomes[i], CValores[i]);
    for (const TFormula& formula : GFormulas) {
        TMuParser muparser;
        muparser.Parser.SetExpr(formula.Textos[0]);
        std::printf("%s\t%s\t%s\t%.17g\n", formula.Nome, formula.Textos[0].c_str(), formula.Textos[1].c_str(),
                    muparser.Parser.Eval());
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::string_view(argv[1]) == "--formulas") {
        EscreverFormulas();
        return EXIT_SUCCESS;
    }
    DefinirFormatSettings(BuscarFormatosBrasileiros());
    for (const TFormula& formula : GFormulas) {
        const std::string nome = std::string("Formula") + formula.Nome;
        benchmark::RegisterBenchmark((nome + "_Biblioteca").c_str(), Biblioteca, formula);
        benchmark::RegisterBenchmark((nome + "_muParser").c_str(), MuParser, formula);
        benchmark::RegisterBenchmark((nome + "_UmaLeitura").c_str(), UmaLeitura, formula);
    }
    benchmark::RegisterBenchmark("Soma1000_Biblioteca", SomaBiblioteca);
    benchmark::RegisterBenchmark("Soma1000_from-chars-e-textos", SomaSeparada);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
