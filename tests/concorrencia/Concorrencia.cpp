// Pure operations may be called from any thread while the process-wide formats stay as they are. The thread sanitizer
// watches this program for what the results alone do not show.
#include "oryutils/runtime/FormatoDataHora.hpp"
#include "oryutils/runtime/Formatos.hpp"

#include "operations/Operacoes.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <latch>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr std::array<const char*, 20> CPedidos{
    R"({"op":"ValidouCnpjCpf","args":[1,"11222333000181"]})",
    R"({"op":"ValidouCnpjAlfanumerico","args":["12ABC34501DE35"]})",
    R"({"op":"ValidouIE","args":["110042490114","SP"]})",
    R"({"op":"ValidouCEI","args":["abcdefghijkl"]})",
    R"({"op":"ValidouEmail","args":["ana@exemplo.com.br"]})",
    R"({"op":"ValidouCRC","args":["SP-123456/O-1"]})",
    R"({"op":"ValidouData","args":["29/02/2024"]})",
    R"({"op":"FormatarInscricaoFederal","args":[1,"11222333000181"]})",
    R"({"op":"BuscarValorPorExtenso","args":["1234567.89"]})",
    R"({"op":"Arredondar","args":["2.345"]})",
    R"({"op":"BuscarDataPorExtenso","args":["2026-11-21T10:00:00"]})",
    R"({"op":"ConverterDataParaFormatoXML","args":["2026-11-21T10:00:00"]})",
    R"({"op":"ConverterDataXMLParaFormatoNativo","args":["2026-11-21T10:00:00-03:00"]})",
    R"({"op":"ConverterMilisegundosParaTempo","args":[90061000,true]})",
    R"({"op":"LimparTexto:chars","args":["1-2.3",[".","-"]]})",
    R"({"op":"BuscarOperadorSQL","args":[">= 5"]})",
    R"({"op":"SepararBlocosSQL","args":["select * from a where b = 1 order by c"]})",
    R"({"op":"MontarFiltroSql","args":[{"operador":1,"filhos":[{"campo":"nome","condicao":12,"valor":"Ana","quote":true},)"
    R"({"campo":"valor","condicao":1,"valor":1.5}]},[],"Where"]})",
    R"({"op":"naoExiste","args":[]})",
    R"({"op":"ValidouCnpjCpf","args":)",
};

TEST(Concorrencia, OitoThreadsRespondemComoUma) {
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    constexpr int threads = 8;
    constexpr int voltas = 200;
    std::vector<std::string> esperado;
    for (const char* pedido : CPedidos) {
        esperado.push_back(Ory::Chamar(pedido));
        EXPECT_EQ(esperado.back().find("EArgumento"), std::string::npos) << pedido << " -> " << esperado.back();
    }
    EXPECT_EQ(std::ranges::count_if(esperado, [](auto& r) { return r.starts_with("{\"resultado\""); }), 17)
        << "two broken requests and one error of its own";
    const std::u16string data = OryUtils::FormatarDataHora(u"dddd, dd/mm/yyyy hh:nn:ss.zzz", 46347.5);

    std::latch largada(threads + 1);
    std::atomic<int> diferentes = 0;
    {
        std::vector<std::jthread> equipe;
        for (int t = 0; t < threads; ++t)
            equipe.emplace_back([&, t] {
                largada.arrive_and_wait();
                for (int volta = 0; volta < voltas; ++volta) {
                    const std::size_t i = static_cast<std::size_t>(volta * (t + 1) + t) % CPedidos.size();
                    if (Ory::Chamar(CPedidos[i]) != esperado[i]) ++diferentes;
                }
            });
        equipe.emplace_back([&] {
            largada.arrive_and_wait();
            for (int volta = 0; volta < 20 * voltas; ++volta)
                if (OryUtils::FormatarDataHora(u"dddd, dd/mm/yyyy hh:nn:ss.zzz", 46347.5) != data) ++diferentes;
        });
    }
    EXPECT_EQ(diferentes, 0);
}

}  // namespace
