#include "oryutils/characters/Utf.hpp"
#include "oryutils/files/OryUtilsFiles.hpp"

#include "Apoio.hpp"
#include "files/ApoioArquivos.hpp"
#include "files/ConstrutorPe.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using OryUtils::ParaUtf8;

class Versao : public testing::Test {
protected:
    void SetUp() override {
        const Pe::TNo recurso = Pe::EmPortugues(
            {7, 2, 0, 15}, {Pe::Texto(u"ProductName", u"Folha de Pagamento"),
                            Pe::Texto(u"Comments", u"com \x1b[31m cor"), Pe::Texto(u"NaoLiberarPacote", u"True")});
        Folha = ParaUtf8(Pasta.Gravar(u"Folha.exe", Pe::MontarArquivo(true, {{0x416, Pe::Montar(recurso)}})));
        Pagina = ParaUtf8(Pasta.Gravar(u"Página.html", "[VERSAO]\nNumero=7,2,0,16\n"));
        const auto data = OryUtils::JuntarDataHora(OryUtils::CodificarData(2026, 11, 15), 0.5);
        for (const auto* nome : {u"Folha.exe", u"Página.html"})
            ASSERT_TRUE(OryUtils::TOryUtilsFiles::AlterouDataHoraArquivo(Pasta.Nome(nome), data));
    }

    TPastaTemporaria Pasta;
    std::string Folha, Pagina;
};

TEST_F(Versao, UmArquivoMostraTudo) {
    EXPECT_EQ(Rodar({"versao", Folha}),
              (TRodada{0,
                       "Folha.exe\n  Versão         7.2.0.15\n  Produto        Folha de Pagamento\n"
                       "  Comentários    com ·[31m cor\n  Liberação      retida\n  Tamanho        1 KB\n"
                       "  Modificado em  15/11/2026 12:00:00\n",
                       ""}));
}

TEST_F(Versao, VariosArquivosEmTabela) {
    const TRodada rodada = Rodar({"versao", Folha, Pagina, "/nao/existe.exe"});
    EXPECT_EQ(rodada.Status, 2);
    EXPECT_EQ(rodada.Erro, "ory: arquivo não encontrado: /nao/existe.exe\n");
    EXPECT_TRUE(rodada.Saida.starts_with("arquivo     ")) << rodada.Saida;
    for (const char* trecho : {"Folha.exe  7.2.0.15      1 KB  15/11/2026 12:00:00  Folha de Pa",
                               "Página.html  7,2,0,16  25 bytes  15/11/2026 12:00:00\n"})
        EXPECT_NE(rodada.Saida.find(trecho), std::string::npos) << rodada.Saida;
}

TEST_F(Versao, NomesComCuringas) {
    Pasta.Gravar(u"folhas.dll", "");
    const std::string pasta = ParaUtf8(Pasta.Nome(u""));
    const auto contar = [&](const char* APadrao) {
        const std::string saida = Rodar({"versao", "--json", pasta + APadrao}).Saida;
        return saida == "[]\n" ? 0 : std::count(saida.begin(), saida.end(), '\n');
    };
    const std::pair<const char*, int> casos[] = {{"*", 3},          {"FOLHA*.*", 2},   {"*ol*a?.*l*", 1},
                                                 {"?olha.exe*", 1}, {"?folha.exe", 0}, {"*.ex", 0}};
    for (const auto& [padrao, quantos] : casos) EXPECT_EQ(contar(padrao), quantos) << padrao;
    ConferirRecusas({{{"versao", "/nao/existe/*.exe"}, "arquivo não encontrado: /nao/existe/*.exe"}});
}

TEST_F(Versao, Json) {
    const std::string esperada =
        R"([{"arquivo":)" + nlohmann::json(Folha).dump() +
        R"(,"nome":"Folha.exe","versao":"7.2.0.15","nome_produto":"Folha de Pagamento","versao_produto":"",)"
        R"("descricao":"","nome_companhia":"","nome_interno":"","nome_original":"","legal_copyright":"",)"
        R"("legal_trademarks":"","comentarios":"com \u001b[31m cor","versao_minima_banco":"",)"
        R"("versao_maxima_conversao":"","nao_liberar_pacote":true,"extensao":".exe","tamanho":1024,)"
        R"("data":"2026-11-15T12:00:00","data_modificacao":"2026-11-15T12:00:00"}])";
    EXPECT_EQ(Rodar({"versao", "--json", Folha}), (TRodada{0, esperada + "\n", ""}));
    EXPECT_EQ(Rodar({"versao", "--json", "/nao/existe.exe"}),
              (TRodada{2, "[]\n", "ory: arquivo não encontrado: /nao/existe.exe\n"}));
}

TEST_F(Versao, Comparar) {
    const struct {
        std::string A, B, Saida;
        int Status;
    } casos[] = {
        {"1.10.0.0", "1.9.0.0", "maior\n", 1}, {"1,2", "1.0.0.2", "igual\n", 0},   {"5", "4.0.0.0", "menor\n", 3},
        {Folha, Pagina, "menor\n", 3},         {Pagina, "7.2.0.16", "igual\n", 0},
    };
    for (const auto& c : casos)
        EXPECT_EQ(Rodar({"versao", "--comparar", c.A, c.B}), (TRodada{c.Status, c.Saida, ""})) << c.A << " " << c.B;
    EXPECT_EQ(Rodar({"versao", "--comparar", "7", "8", "--json"}).Saida,
              "{\"a\":\"7\",\"b\":\"8\",\"resultado\":\"menor\"}\n");
}

TEST_F(Versao, OQueEstahErradoEhDito) {
    const std::string pasta = ParaUtf8(Pasta.Nome(u""));
    const std::string ruim = ParaUtf8(Pasta.Gravar(u"ruim.ini", "[VERSAO]\nNumero=7.a\n"));
    ConferirRecusas({
        {{"versao"}, "falta o arquivo; veja ory versao --ajuda"},
        {{"versao", " "}, "o nome do arquivo está vazio"},
        {{"versao", pasta}, "é uma pasta: " + pasta},
        {{"versao", pasta + "*.nenhum"}, "arquivo não encontrado: " + pasta + "*.nenhum"},
        {{"versao", "--comparar", "1"}, "falta o valor de --comparar; veja ory --ajuda"},
        {{"versao", "--comparar", "1", "2", Folha}, "--comparar leva só as duas versões"},
        {{"versao", "--comparar", "1", ""}, "uma das versões está vazia"},
        {{"versao", "--comparar", "1", "1..2"}, "a versão 1..2 não serve: '' não é um valor inteiro válido"},
        {{"versao", "--comparar", "1", ruim},
         "a versão 7.a de " + ruim + " não serve: 'a' não é um valor inteiro válido"},
        {{"versao", "--comparar", "1", "/nao/existe"}, "/nao/existe não é uma versão nem um arquivo"},
        {{"versao", "--comparar", "1", pasta}, pasta + " não é uma versão nem um arquivo"},
        {{"versao", "--comparar", "1", "2", "--comparar", "3", "4"}, "--comparar tem valores demais; veja ory --ajuda"},
    });
}

}  // namespace
