#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"

#include "Apoio.hpp"
#include "files/ApoioArquivos.hpp"
#include "files/ConstrutorPe.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace {

using OryUtils::ParaUtf8;

std::string MontarFolha() {
    return Pe::MontarArquivo(
        true, {{0x416, Pe::Montar(Pe::Raiz(
                           {{7, 2, 0, 15}},
                           {Pe::Textos({Pe::Tabela(u"041604b0", {Pe::Texto(u"ProductName", u"Folha de Pagamento"),
                                                                 Pe::Texto(u"Comments", u"com \x1b[31m cor"),
                                                                 Pe::Texto(u"NaoLiberarPacote", u"True")})}),
                            Pe::Traducoes({{0x416, 1200}})}))}});
}

class Versao : public testing::Test {
protected:
    void SetUp() override {
        Folha = ParaUtf8(Pasta.Gravar(u"Folha.exe", MontarFolha()));
        Pagina = ParaUtf8(Pasta.Gravar(u"Página.html", "[VERSAO]\nNumero=7,2,0,16\n"));
        const auto data = OryUtils::JuntarDataHora(OryUtils::CodificarData(2026, 11, 15), 0.5);
        ASSERT_TRUE(OryUtils::TOryUtilsFiles::AlterouDataHoraArquivo(Pasta.Nome(u"Folha.exe"), data));
        ASSERT_TRUE(OryUtils::TOryUtilsFiles::AlterouDataHoraArquivo(Pasta.Nome(u"Página.html"), data));
    }

    TPastaTemporaria Pasta;
    std::string Folha, Pagina;
};

TEST_F(Versao, UmArquivoMostraTudo) {
    const TRodada rodada = Rodar({"versao", Folha});
    EXPECT_EQ(rodada.Status, 0);
    EXPECT_EQ(rodada.Saida,
              "Folha.exe\n"
              "  Versão         7.2.0.15\n"
              "  Produto        Folha de Pagamento\n"
              "  Comentários    com ·[31m cor\n"
              "  Liberação      retida\n"
              "  Tamanho        1 KB\n"
              "  Modificado em  15/11/2026 12:00:00\n");
}

TEST_F(Versao, VariosArquivosEmTabela) {
    const TRodada rodada = Rodar({"versao", Folha, Pagina, "/nao/existe.exe"});
    EXPECT_EQ(rodada.Status, 2);
    EXPECT_EQ(rodada.Erro, "ory: arquivo não encontrado: /nao/existe.exe\n");
    std::string saida = rodada.Saida;
    EXPECT_EQ(saida.substr(0, 12), "arquivo     ");
    EXPECT_NE(saida.find("Folha.exe  7.2.0.15      1 KB  15/11/2026 12:00:00  Folha de Pa"), saida.npos) << saida;
    EXPECT_NE(saida.find("Página.html  7,2,0,16  25 bytes  15/11/2026 12:00:00\n"), saida.npos) << saida;
}

TEST_F(Versao, NomesComCuringas) {
    Pasta.Gravar(u"folhas.dll", "");
    const std::string pasta = ParaUtf8(Pasta.Nome(u""));
    const auto contar = [&](const char* APadrao) {
        const std::string saida = Rodar({"versao", "--json", pasta + APadrao}).Saida;
        return saida == "[]\n" ? 0 : std::count(saida.begin(), saida.end(), '\n');
    };
    EXPECT_EQ(contar("*"), 3);
    EXPECT_EQ(contar("FOLHA*.*"), 2);
    EXPECT_EQ(contar("*ol*a?.*l*"), 1);
    EXPECT_EQ(contar("?olha.exe*"), 1);
    EXPECT_EQ(contar("?folha.exe"), 0);
    EXPECT_EQ(contar("*.ex"), 0);
    EXPECT_EQ(Rodar({"versao", "/nao/existe/*.exe"}).Status, 2);
}

TEST_F(Versao, Json) {
    const auto resposta = nlohmann::json::parse(Rodar({"versao", "--json", Folha, Pagina}).Saida);
    ASSERT_EQ(resposta.size(), 2u);
    EXPECT_EQ(resposta[0]["arquivo"], Folha);
    EXPECT_EQ(resposta[0]["versao"], "7.2.0.15");
    EXPECT_EQ(resposta[0]["nao_liberar_pacote"], true);
    EXPECT_EQ(resposta[0]["data_modificacao"], "2026-11-15T12:00:00");
    EXPECT_EQ(resposta[1]["versao"], "7,2,0,16");
    EXPECT_EQ(resposta[1]["tamanho"], 25);
    EXPECT_EQ(resposta[1]["extensao"], ".html");
    const TRodada vazia = Rodar({"versao", "--json", "/nao/existe.exe"});
    EXPECT_EQ(vazia.Saida, "[]\n");
    EXPECT_EQ(vazia.Status, 2);
}

TEST_F(Versao, Comparar) {
    const struct {
        std::string A, B, Saida;
        int Status;
    } casos[] = {
        {"1.10.0.0", "1.9.0.0", "maior\n", 1}, {"1,2", "1.0.0.2", "igual\n", 0},   {"5", "4.0.0.0", "menor\n", 3},
        {Folha, Pagina, "menor\n", 3},         {Pagina, "7.2.0.16", "igual\n", 0},
    };
    for (const auto& caso : casos) {
        const TRodada rodada = Rodar({"versao", "--comparar", caso.A, caso.B});
        EXPECT_EQ(rodada.Saida, caso.Saida) << caso.A << " " << caso.B << rodada.Erro;
        EXPECT_EQ(rodada.Status, caso.Status);
    }
    EXPECT_EQ(Rodar({"versao", "--comparar", "7", "8", "--json"}).Saida,
              "{\"a\":\"7\",\"b\":\"8\",\"resultado\":\"menor\"}\n");
}

TEST_F(Versao, OQueEstahErradoEhDito) {
    const std::string pasta = ParaUtf8(Pasta.Nome(u""));
    const std::string ruim = ParaUtf8(Pasta.Gravar(u"ruim.ini", "[VERSAO]\nNumero=7.a\n"));
    const struct {
        std::vector<std::string> Argumentos;
        std::string Erro;
    } casos[] = {
        {{}, "falta o arquivo; veja ory versao --ajuda"},
        {{" "}, "o nome do arquivo está vazio"},
        {{pasta}, "é uma pasta: " + pasta},
        {{pasta + "*.nenhum"}, "arquivo não encontrado: " + pasta + "*.nenhum"},
        {{"--comparar", "1"}, "falta o valor de --comparar; veja ory --ajuda"},
        {{"--comparar", "1", "2", Folha}, "--comparar leva só as duas versões"},
        {{"--comparar", "1", ""}, "uma das versões está vazia"},
        {{"--comparar", "1", "1..2"}, "a versão 1..2 não serve: '' não é um valor inteiro válido"},
        {{"--comparar", "1", ruim}, "a versão 7.a de " + ruim + " não serve: 'a' não é um valor inteiro válido"},
        {{"--comparar", "1", "/nao/existe"}, "/nao/existe não é uma versão nem um arquivo"},
        {{"--comparar", "1", pasta}, pasta + " não é uma versão nem um arquivo"},
        {{"--comparar", "1", "2", "--comparar", "3", "4"}, "--comparar tem valores demais; veja ory --ajuda"},
    };
    for (const auto& caso : casos) {
        std::vector<std::string> argumentos{"versao"};
        argumentos.insert(argumentos.end(), caso.Argumentos.begin(), caso.Argumentos.end());
        const TRodada rodada = Rodar(argumentos);
        EXPECT_EQ(rodada.Erro, "ory: " + caso.Erro + "\n");
        EXPECT_EQ(rodada.Status, 2) << caso.Erro;
        EXPECT_EQ(rodada.Saida, "") << caso.Erro;
    }
}

TEST_F(Versao, OperacoesPeloNome) {
    ConferirChamadas({
        {R"({"op":"CompareVersion","args":["x","1"]})",
         R"({"erro":"'x' não é um valor inteiro válido","classe":"EConvertError"})"},
        {R"({"op":"DividirVersao","args":["1.2"]})", R"({"resultado":[1,0,0,2]})"},
        {R"({"op":"OrdenarListaDeVersoes","args":[["2.0.0.0","1","","1.10","1.9"]]})",
         R"({"resultado":["1","2.0.0.0","","1.9","1.10"]})"},
        {R"({"op":"EhArquivoEXE","args":["A.EXE"]})", R"({"resultado":true})"},
        {R"({"op":"FormatarTamanhoArquivo","args":[1536]})", R"({"resultado":"1,5 KB"})"},
        {R"({"op":"BuscarVersaoArquivo","args":["/nao/existe.exe"]})", R"({"resultado":""})"},
    });
    std::string pedido = R"({"op":"GetVersionFromINI","args":[)";
    pedido += nlohmann::json(Pagina).dump() + "]}";
    EXPECT_EQ(Ory::Chamar(pedido), R"({"resultado":"7,2,0,16"})");
}

}  // namespace
