// The validations against a plain loop, on the same list: half CPF and half CNPJ, formatted, bare and odd, some wrong.
// The limit is each character read once. With an argument "--escrever=ARQUIVO" the lists and the verdicts are written
// for the other benchmarks to read.
#include "oryutils/characters/Utf.hpp"
#include "oryutils/registry_numbers/OryUtilsValidacoes.hpp"

#include "UmaLeitura.hpp"

#include <benchmark/benchmark.h>

#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace OryUtils;
using namespace OryTypes;

struct TItem {
    TTipoInscricao Tipo;
    std::u16string Numero;
};
struct TItemIE {
    std::u16string UF, IE;
};

bool LacoSimples(TTipoInscricao ATipo, std::u16string_view ANumero) {
    std::u16string digitos;
    for (const char16_t c : ANumero)
        if (c >= u'0' && c <= u'9') digitos.push_back(c);
    static constexpr int CPesosCpf[] = {11, 10, 9, 8, 7, 6, 5, 4, 3, 2};
    static constexpr int CPesosCnpj[] = {6, 5, 4, 3, 2, 9, 8, 7, 6, 5, 4, 3, 2};
    const int* pesos = ATipo == tiCPF ? CPesosCpf : CPesosCnpj;
    const std::size_t quantos = ATipo == tiCPF ? 9 : 12;
    if (digitos.size() != quantos + 2) return false;
    for (std::size_t digito = 0; digito < 2; ++digito) {
        int soma = 0;
        for (std::size_t i = 0; i < quantos + digito; ++i) soma += (digitos[i] - u'0') * pesos[i + 1 - digito];
        const int esperado = 11 - soma % 11;
        if ((esperado > 9 ? 0 : esperado) != digitos[quantos + digito] - u'0') return false;
    }
    return true;
}

std::u16string Desenhar(std::string_view AForma, std::mt19937& AGerador) {
    std::u16string texto;
    for (const char c : AForma)
        texto += c == '0' ? static_cast<char16_t>(u'0' + AGerador() % 10) : static_cast<char16_t>(c);
    return texto;
}

/// Makes the last two digits of ATexto right by trying.
template <typename TValidou>
void Acertar(std::u16string& ATexto, TValidou AValidou) {
    for (int valor = 0; valor < 100 && !AValidou(); ++valor) {
        ATexto[ATexto.size() - 2] = static_cast<char16_t>(u'0' + valor / 10);
        ATexto[ATexto.size() - 1] = static_cast<char16_t>(u'0' + valor % 10);
    }
}

std::vector<TItem> MontarDocumentos() {
    static constexpr std::string_view CFormas[2][4] = {
        {"000.000.000-00", "00000000000", "000.000.000-00", "000 000 000 00"},
        {"00.000.000/0000-00", "00000000000000", "00.000.000/0000-00", "00.000.000 / 0000-00"}};
    std::mt19937 gerador(20260701);
    std::vector<TItem> itens;
    for (int i = 0; i < 4096; ++i) {
        const bool cnpj = gerador() % 2;
        TItem item{cnpj ? tiCNPJ : tiCPF, Desenhar(CFormas[cnpj][gerador() % 16 ? gerador() % 3 : 3], gerador)};
        if (gerador() % 8) Acertar(item.Numero, [&] { return LacoSimples(item.Tipo, item.Numero); });
        itens.push_back(std::move(item));
    }
    return itens;
}

std::vector<TItemIE> MontarIEs() {
    static constexpr std::u16string_view CUnidades[][2] = {
        {u"AC", u"01"}, {u"AL", u"24"}, {u"AM", u"04"},  {u"AP", u"030"}, {u"BA", u"7"},  {u"CE", u"06"},
        {u"DF", u"07"}, {u"ES", u"08"}, {u"GO", u"10"},  {u"MA", u"12"},  {u"MG", u"06"}, {u"MS", u"28"},
        {u"MT", u"00"}, {u"PA", u"15"}, {u"PB", u"16"},  {u"PE", u"03"},  {u"PI", u"19"}, {u"PR", u"90"},
        {u"RJ", u"7"},  {u"RN", u"20"}, {u"RO", u"000"}, {u"RR", u"24"},  {u"RS", u"22"}, {u"SC", u"25"},
        {u"SE", u"27"}, {u"SP", u"11"}, {u"TO", u"29"}};
    static constexpr std::size_t CTamanhos[] = {13, 9, 9, 9,  9, 9, 13, 9, 9,  9, 13, 9,  11, 9,
                                                9,  9, 9, 10, 8, 9, 14, 9, 10, 9, 9,  12, 9};
    std::mt19937 gerador(20260702);
    std::vector<TItemIE> itens;
    while (itens.size() < 2048) {
        const auto unidade = gerador() % std::size(CUnidades);
        const auto inicio = CUnidades[unidade][1];
        TItemIE item{std::u16string(CUnidades[unidade][0]),
                     std::u16string(inicio) + Desenhar(std::string(CTamanhos[unidade] - inicio.size(), '0'), gerador)};
        Acertar(item.IE, [&] { return ValidouIE(item.IE, item.UF); });
        itens.push_back(std::move(item));
    }
    return itens;
}

const std::vector<TItem> GDocumentos = MontarDocumentos();
const std::vector<TItemIE> GIEs = MontarIEs();

template <typename TValidar>
void Medir(benchmark::State& AEstado, const auto& AItens, TValidar AValidar) {
    for (auto _ : AEstado) {
        int validos = 0;
        for (const auto& item : AItens) validos += AValidar(item);
        benchmark::DoNotOptimize(validos);
    }
    AEstado.SetItemsProcessed(AEstado.iterations() * static_cast<std::int64_t>(AItens.size()));
}

void CpfCnpj_UmaLeitura(benchmark::State& AEstado) {
    Medir(AEstado, GDocumentos, [](const TItem& i) { return static_cast<int>(LerUmaVez(i.Numero) & 1); });
}
void IE_UmaLeitura(benchmark::State& AEstado) {
    Medir(AEstado, GIEs, [](const TItemIE& i) { return static_cast<int>((LerUmaVez(i.IE) + LerUmaVez(i.UF)) & 1); });
}
void CpfCnpj_LacoSimples(benchmark::State& AEstado) {
    Medir(AEstado, GDocumentos, [](const TItem& i) { return LacoSimples(i.Tipo, i.Numero); });
}
void CpfCnpj_Biblioteca(benchmark::State& AEstado) {
    Medir(AEstado, GDocumentos, [](const TItem& i) { return ValidouCnpjCpf(i.Tipo, i.Numero); });
}
void IE_Biblioteca(benchmark::State& AEstado) {
    Medir(AEstado, GIEs, [](const TItemIE& i) { return ValidouIE(i.IE, i.UF); });
}
BENCHMARK(CpfCnpj_LacoSimples);
BENCHMARK(CpfCnpj_Biblioteca);
BENCHMARK(IE_Biblioteca);
BENCHMARK(CpfCnpj_UmaLeitura);
BENCHMARK(IE_UmaLeitura);

void Escrever(const std::string& AArquivo) {
    std::ofstream arquivo(AArquivo);
    for (const TItem& item : GDocumentos)
        arquivo << (item.Tipo == tiCPF ? "CPF" : "CNPJ") << ';' << ParaUtf8(item.Numero) << ';'
                << ValidouCnpjCpf(item.Tipo, item.Numero) << '\n';
    for (const TItemIE& item : GIEs)
        arquivo << ParaUtf8(item.UF) << ';' << ParaUtf8(item.IE) << ';' << ValidouIE(item.IE, item.UF) << '\n';
}

}  // namespace

int main(int AQuantos, char** AArgumentos) {
    constexpr std::string_view CEscrever = "--escrever=";
    if (AQuantos == 2 && std::string_view(AArgumentos[1]).starts_with(CEscrever)) {
        Escrever(AArgumentos[1] + CEscrever.size());
        return 0;
    }
    benchmark::Initialize(&AQuantos, AArgumentos);
    if (benchmark::ReportUnrecognizedArguments(AQuantos, AArgumentos)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
