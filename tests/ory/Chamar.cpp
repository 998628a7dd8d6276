#include "Apoio.hpp"
#include "chamar/Chamadas.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace {

using nlohmann::json;

TEST(Chamar, DizOQueEstahErrado) {
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    constexpr std::pair<std::string_view, const char*> CPerguntas[] = {
        {"", "JSON inválido no byte 1"},
        {"{", "JSON inválido no byte 2"},
        {"\xFF", "JSON inválido no byte 1"},
        {R"({"op":"\ud800"})", "JSON inválido"},
        {"[1]", "não é um objeto"},
        {"{}", "falta \\\"op\\\""},
        {R"({"op":1})", "falta \\\"op\\\""},
        {R"({"op":"AllTrim","args":{}})", "não é uma lista"},
        {R"({"op":"Nada"})", "operação desconhecida: Nada"},
        {R"({"op":"AllTrim"})", "esperava 1 argumento, veio 0: AllTrim(texto): texto"},
        {R"({"op":"AllTrim","args":["a","b"]})", "esperava 1 argumento, veio 2"},
        {R"({"op":"AllTrim","args":[1]})", "argumento 1: esperava texto, veio número 1"},
        {R"({"op":"RepetirCaractere","args":["😀",1]})", "argumento 1: esperava caractere"},
        {R"({"op":"RepetirCaractere","args":["a",1.5]})", "argumento 2: esperava inteiro"},
        {R"({"op":"RepetirCaractere","args":["a",2147483648]})", "veio número 2147483648"},
        {R"({"op":"RepetirCaractere","args":["a",18446744073709551615]})", "veio número 18446744073709551615"},
        {R"({"op":"ConverterTeclaVirtualParaCaractere","args":[65536]})", "(de 0 a 65535)"},
        {R"({"op":"BuscarMascara","args":["1"]})", "esperava TTipoInscricao"},
        {R"({"op":"FormatarParametroPesquisa","args":["a",1,257]})",
         "esperava TTipoFormatoParametroPesquisa (de 0 a 255), veio número 257"},
        {R"({"op":"TextoContemItemVetor","args":["a",["b",null],true]})", "argumento 2: esperava texto, veio nulo"},
        {R"({"op":"TextoContemItemVetor","args":["a",["b"],"true"]})", "argumento 3: esperava lógico"},
        {R"({"op":"BuscarBimestre","args":["2024-02-30"]})", "esperava data-hora"},
        {R"({"op":"BuscarBimestre","args":["2024-02-10T10:00:00.x"]})", "esperava data-hora"},
        {R"({"op":"Iif","args":[true,{},1]})",
         "argumento 2: esperava lógico, número, texto, nulo ou lista, veio objeto"},
        {R"({"op":"ConverterBase64ParaTexto","args":["*"]})", "\"classe\":\"EConvertError\""},
        {R"({"op":"Iif","args":[true,1e99999,1]})", "\"classe\":\"EProtocolo\""},
    };
    for (const auto& [requisicao, trecho] : CPerguntas) {
        const std::string resposta = Ory::Chamar(requisicao);
        EXPECT_NE(resposta.find(trecho), std::string::npos) << requisicao << "\n" << resposta;
        EXPECT_TRUE(json::parse(resposta).contains("classe")) << resposta;
    }
    const std::string fundo = std::string(100'000, '[') + std::string(100'000, ']');
    for (const auto& requisicao : {std::string(1'000'000, '['), R"({"op":"AllTrim","args":[)" + fundo + "]}"})
        EXPECT_TRUE(json::parse(Ory::Chamar(requisicao)).contains("erro"));
}

TEST(Chamar, LoteRespondeCadaLinhaEmOrdem) {
    const std::string pergunta = R"({"op":"AllTrim","args":["a b"]})";
    const std::string longa = "{\"op\":\"" + std::string(200, 'x') + "\"}";
    const std::string entrada = "\xEF\xBB\xBF" + pergunta + "\r\n\n" + longa + "\n{\n" + pergunta;
    std::string todas;
    for (std::size_t pedaco = 1; pedaco < entrada.size(); pedaco += 7) {
        Ory::TEntradaDeTexto leitura(entrada, pedaco);
        Ory::TSaidaDeTexto saida;
        Ory::ChamarEmLote(leitura, saida, 100);
        if (todas.empty()) todas = saida.Texto;
        EXPECT_EQ(saida.Texto, todas) << pedaco;
    }
    const std::string certa = R"({"resultado":"ab"})";
    EXPECT_EQ(todas, certa + "\n" + R"({"erro":"JSON inválido no byte 1","classe":"EProtocolo"})" + "\n" +
                         R"({"erro":"requisição longa demais","classe":"EProtocolo"})" + "\n" +
                         R"({"erro":"JSON inválido no byte 2","classe":"EProtocolo"})" + "\n" + certa + "\n");
}

/// Gives the second request only when the first answer is there, as a program that asks and waits does.
struct TConversa final : Ory::TEntrada, Ory::TSaida {
    std::string Respostas{};
    int Perguntas = 0;

    std::size_t Ler(std::span<char> ADestino) override {
        if (Perguntas && std::count(Respostas.begin(), Respostas.end(), '\n') < Perguntas) return 0;
        return Perguntas++ < 3 ? std::string_view("{\"op\":\"x\"}\n").copy(ADestino.data(), 11) : 0;
    }
    bool LerEsperaria() override { return true; }
    void Escrever(std::string_view ABytes) override { Respostas += ABytes; }
};

TEST(Chamar, LoteNaoSeguraRespostasQuandoTeriaDeEsperar) {
    TConversa conversa;
    Ory::ChamarEmLote(conversa, conversa);
    EXPECT_EQ(std::count(conversa.Respostas.begin(), conversa.Respostas.end(), '\n'), 3);
}

TEST(Chamar, LinhaDeComando) {
    const std::pair<std::vector<std::string>, TRodada> linhas[] = {
        {{"chamar", "ValidouCnpjCpf", "1", "11222333000181"}, {0, "true\n", ""}},
        {{"chamar", "AllTrim", "1 2"}, {0, "12\n", ""}},
        {{"chamar", "AllTrim", "--json"}, {0, "--json\n", ""}},
        {{"chamar", "--json", "AllTrim", "1 2"}, {0, "{\"resultado\":\"12\"}\n", ""}},
        {{"chamar", "BuscarBimestre", "2024-03-05"}, {0, "2\n", ""}},
        {{"chamar", "Iif", "false", "x", "007"}, {0, "007\n", ""}},
        {{"chamar", "ConverterTextoParaListaDeParametros", "a \"b c\""}, {0, "a\nb c\n", ""}},
        {{"chamar", "TextoContemItemVetor", "a", "[\"b\",\"A\"]", "true"}, {0, "true\n", ""}},
        {{"chamar", "ValidouCEI", "abcdefghijkl"},
         {1, "", "ory: 'abcdefghijkl' não é um valor de ponto flutuante válido\n"}},
    };
    for (const auto& [argumentos, esperada] : linhas)
        EXPECT_EQ(Rodar(argumentos), esperada) << testing::PrintToString(argumentos);
    EXPECT_TRUE(Rodar({"--versao"}).Saida.starts_with("ory "));
    EXPECT_NE(Rodar({"chamar", "--ajuda"}).Saida.find("Uso: ory chamar"), std::string::npos);
    EXPECT_EQ(Rodar({}).Status, 2);
    EXPECT_NE(Rodar({}).Erro.find("Uso: ory"), std::string::npos);
    const std::string lista = Rodar({"operacoes"}).Saida;
    EXPECT_NE(lista.find("ValidouCnpjCpf(TTipoInscricao, texto): lógico\n"), std::string::npos);
    const json emJson = json::parse(Rodar({"operacoes", "--json"}).Saida);
    const auto comEnumeracao = std::ranges::find(emJson, json("ValidouCnpjCpf"), [](const json& A) { return A["op"]; });
    ASSERT_NE(comEnumeracao, emJson.end());
    EXPECT_EQ((*comEnumeracao)["valores"]["TTipoInscricao"]["tiCPF"], 2);
    EXPECT_EQ(Rodar({"chamar", "ValidouCnpjCpf", "ticnpj", "11222333000181"}).Saida, "true\n") << "by name";
    const std::string recusa = Rodar({"chamar", "ValidouCnpjCpf", "tiNada", "1"}).Erro;
    EXPECT_NE(recusa.find("esperava TTipoInscricao (um número, ou "), std::string::npos) << recusa;
    EXPECT_NE(recusa.find("tiCNPJ, tiCPF"), std::string::npos) << recusa;
    EXPECT_EQ(static_cast<std::ptrdiff_t>(emJson.size()), std::count(lista.begin(), lista.end(), '\n'));
}

}  // namespace
