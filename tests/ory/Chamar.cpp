#include "Apoio.hpp"
#include "chamar/Chamadas.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

namespace {

using nlohmann::json;

std::string Responder(std::string_view ARequisicao) {
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    return Ory::Chamar(ARequisicao);
}

struct TPergunta {
    std::string_view Requisicao, Resposta;
};

TEST(Chamar, CadaTipoVaiEVolta) {
    ConferirChamadas({
        {R"({"op":"ValidouCnpjCpf","args":[1,"11222333000181"]})", R"({"resultado":true})"},
        {R"({"op":"ValidouCnpjCpf","args":[77,"11222333000181"]})", R"({"resultado":false})"},
        {R"({"op":"RepetirCaractere","args":["ç",3]})", R"({"resultado":"ççç"})"},
        {R"({"op":"LimparTexto:chars","args":["1.2-3",[".","2"]]})", R"({"resultado":"1-3"})"},
        {R"({"op":"ClearString:chars","args":["1.2-3",".2"]})", R"({"resultado":"1-3"})"},
        {R"({"op":"ClearString:strings","args":["abcabd",["ab","c"]]})", R"({"resultado":"d"})"},
        {R"({"op":"ConverterTextoComDelimitadorParaStringList","args":["a;;b",";"]})", R"({"resultado":["a","","b"]})"},
        {R"({"op":"ConverterStringListParaTextoComDelimitador","args":[["a","b"],", "]})", R"({"resultado":"a, b"})"},
        {R"({"op":"ConverterStringListParaTextoComDelimitador","args":[null,";"]})",
         R"({"erro":"Argumento <AStringList> não está instanciado.","classe":"Exception"})"},
        {R"({"op":"ConverterTextoParaVetorDeCaracteres:prefixo","args":["ab",4]})",
         R"({"resultado":"ab\u0000\u0000"})"},
        {R"({"op":"ConverterTextoParaVetorDeCaracteres:prefixo","args":["ab",-1]})", R"({"resultado":""})"},
        {R"({"op":"Base64:idaevolta","args":["ação 😀"]})", R"({"resultado":"ação 😀"})"},
        {R"({"op":"AllTrim","args":["\"\\\n\u0001 é"]})", R"({"resultado":"\"\\\n\u0001é"})"},
        {R"({"op":"BuscarUltimoDiaMes","args":["2024-02-10T23:59:59.999"]})", R"({"resultado":"2024-02-29T00:00:00"})"},
        {R"({"op":"BuscarDataHoraMedidaTempo","args":["2024-01-31",7,1]})", R"({"resultado":"2024-02-29T00:00:00"})"},
        {R"({"op":"BuscarDataHoraMedidaTempo","args":["2024-01-31 10:20",3,-1]})",
         R"({"resultado":"2024-01-31T10:19:59"})"},
        {R"({"op":"BuscarDataFormatada","args":["2024-03-05T14:07:09"]})", R"({"resultado":"03/05/2024"})"},
        {R"({"op":"BuscarDataFormatada:tudo","args":["2024-03-05T14:07:09",1,"",false]})",
         R"({"resultado":"05/03/2024 14:07:09"})"},
        {R"({"op":"BuscarDataFormatada:parametros","args":["2024-03-05T14:07:09",0,"yyyy",true]})",
         R"({"resultado":"'2024'"})"},
        {R"({"op":"ConverterOrientacaoData","args":["03/05/2024",1]})", R"({"resultado":"2024-05-03T00:00:00"})"},
        {R"({"op":"ConverterOrientacaoData:livre","args":["03/05/2024",1]})", R"({"resultado":"1899-12-30T00:00:00"})"},
        {R"({"op":"BuscarDataFinalDoTrimestre","args":["2024-02-10"]})", R"({"resultado":"2024-03-31T00:00:00"})"},
        {R"({"op":"ValidouMetodosRetorno","args":[[true,false,true],0]})", R"({"resultado":false})"},
        {R"({"op":"SomarBase","args":[[2,3],"45"]})", R"({"resultado":23})"},
        {R"({"op":"Iif","args":[true,"x",1]})", R"({"resultado":"x"})"},
        {R"({"op":"Iif","args":[false,"x",0.1]})", R"({"resultado":0.1})"},
        {R"({"op":"Iif","args":[false,"x",2.0]})", R"({"resultado":2.0})"},
        {R"({"op":"Iif","args":[false,"x",null]})", R"({"resultado":null})"},
        {R"({"op":"Iif","args":[false,"x",-9223372036854775808]})", R"({"resultado":-9223372036854775808})"},
    });
}

TEST(Chamar, DizOQueEstahErrado) {
    constexpr TPergunta CPerguntas[] = {
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
    for (const TPergunta& p : CPerguntas) {
        const std::string resposta = Responder(p.Requisicao);
        EXPECT_NE(resposta.find(p.Resposta), std::string::npos) << p.Requisicao << "\n" << resposta;
        EXPECT_TRUE(json::parse(resposta).contains("classe")) << resposta;
    }
    EXPECT_TRUE(json::parse(Responder(std::string(1'000'000, '['))).contains("erro"));
    EXPECT_TRUE(json::parse(Responder(R"({"op":"AllTrim","args":[)" + std::string(100'000, '[') +
                                      std::string(100'000, ']') + "]}"))
                    .contains("erro"));
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

struct TLinha {
    std::vector<std::string> Argumentos;
    int Status;
    const char *Saida, *Erro;
};

TEST(Chamar, LinhaDeComando) {
    const TLinha linhas[] = {
        {{"chamar", "ValidouCnpjCpf", "1", "11222333000181"}, 0, "true\n", ""},
        {{"chamar", "AllTrim", "1 2"}, 0, "12\n", ""},
        {{"chamar", "AllTrim", "--json"}, 0, "--json\n", ""},
        {{"chamar", "--json", "AllTrim", "1 2"}, 0, "{\"resultado\":\"12\"}\n", ""},
        {{"chamar", "BuscarBimestre", "2024-03-05"}, 0, "2\n", ""},
        {{"chamar", "Iif", "false", "x", "007"}, 0, "007\n", ""},
        {{"chamar", "ConverterTextoParaListaDeParametros", "a \"b c\""}, 0, "a\nb c\n", ""},
        {{"chamar", "TextoContemItemVetor", "a", "[\"b\",\"A\"]", "true"}, 0, "true\n", ""},
        {{"chamar", "TextoContemItemVetor", "a", "b", "true"}, 2, "", "argumento 2: esperava lista de textos"},
        {{"chamar", "ValidouCEI", "abcdefghijkl"}, 1, "", "ory: "},
        {{"chamar", "Nada"}, 2, "", "operação desconhecida: Nada"},
        {{"chamar"}, 2, "", "falta a operação"},
        {{"chamar", "--lote", "x"}, 2, "", "--lote não leva operação"},
        {{"--versao"}, 0, "ory ", ""},
        {{}, 2, "", "Uso: ory"},
        {{"nada"}, 2, "", "argumento desconhecido: nada"},
        {{"chamar", "--ajuda"}, 0, "Uso: ory chamar", ""},
        {{"operacoes"}, 0, "ValidouCnpjCpf(TTipoInscricao, texto): lógico\n", ""},
    };
    for (const TLinha& linha : linhas) {
        const TRodada rodada = Rodar(linha.Argumentos);
        const std::string nome = testing::PrintToString(linha.Argumentos);
        EXPECT_EQ(rodada.Status, linha.Status) << nome << rodada.Erro;
        EXPECT_NE(rodada.Saida.find(linha.Saida), std::string::npos) << nome << rodada.Saida;
        EXPECT_NE(rodada.Erro.find(linha.Erro), std::string::npos) << nome << rodada.Erro;
        EXPECT_EQ(rodada.Saida.empty(), *linha.Saida == '\0') << nome << rodada.Saida;
    }
    const std::string lista = Rodar({"operacoes"}).Saida;
    const json emJson = json::parse(Rodar({"operacoes", "--json"}).Saida);
    EXPECT_EQ(static_cast<std::ptrdiff_t>(emJson.size()), std::count(lista.begin(), lista.end(), '\n'));
}

}  // namespace
