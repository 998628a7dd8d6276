#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Apoio.hpp"
#include "operations/Json.hpp"
#include "sistema/Sistema.hpp"

#include <gtest/gtest.h>

#include <algorithm>

// What the machine tells of itself: ory sistema, ory processos, ory servico.

namespace {

using Ory::TJson;

TEST(Sistema, RetratoEmTabelaEEmJson) {
    const Ory::TRetratoDoSistema retrato{
        .Maquina = {{"computador", "Computador", u"PC\x1b[2J"},
                    {"usuario", "Usuário", u"João"},
                    {"mac", "Endereço MAC"}},
        .Discos = {{u"C:\\", u"Não identificado", 10737418240, 3221225472}, {u"D:\\", u"\"x\"", 0, 0}},
        .Pastas = {{"documentos", "Documentos", u"C:\\Usuários\\ana"}}};
    EXPECT_EQ(Ory::EscreverRetrato(retrato),
              "Computador    PC·[2J\nUsuário       João\nEndereço MAC  -\n\n"
              "Unidade  Volume              Total    Livre    Usado\n"
              "C:\\      Não identificado    10 GB  3072 MB  7168 MB\n"
              "D:\\      \"x\"               0 Bytes  0 Bytes  0 Bytes\n\n"
              "Documentos  C:\\Usuários\\ana\n");
    EXPECT_EQ(Ory::EscreverRetratoJson(retrato),
              R"({"maquina":{"computador":"PC\u001b[2J","usuario":"João","mac":null},"discos":[)"
              R"({"unidade":"C:\\","volume":"Não identificado","total":10737418240,"livre":3221225472},)"
              R"({"unidade":"D:\\","volume":"\"x\"","total":0,"livre":0}],)"
              R"("pastas":{"documentos":"C:\\Usuários\\ana"}})");
}

TEST(Sistema, ComandoMostraEstaMaquina) {
    const TRodada rodada = Rodar({"sistema", "--json"});
    const TJson json = TJson::parse(rodada.Saida);
    EXPECT_EQ(json["maquina"]["computador"], OryUtils::ParaUtf8(OryUtils::GetNomeComputador()));
    EXPECT_EQ(json["pastas"]["temporaria"], OryUtils::ParaUtf8(OryUtils::GetPastaTempWindows()));
    EXPECT_EQ(json["discos"].size(), OryUtils::TOryUtilsSistema::BuscarListaDrivesComputador().size());
    EXPECT_EQ(rodada.Status, rodada.Erro.empty() ? 0 : 1);
    EXPECT_NE(Rodar({"sistema"}).Saida.find(OryUtils::ParaUtf8(OryUtils::GetNomeComputador())), std::string::npos);
}

TEST(Processos, TabelaEJsonMostramEsteProcesso) {
    const TRodada emJson = Rodar({"processos", "--json"});
    ASSERT_EQ(emJson.Status, 0);
    const TJson processos = TJson::parse(emJson.Saida);
    // The tests of the command are a process of this name, whatever else runs.
    const auto este = std::find_if(processos.begin(), processos.end(), [](const TJson& AProcesso) {
        return AProcesso["processo"].get<std::string>().starts_with("testes_ory");
    });
    ASSERT_NE(este, processos.end());
    EXPECT_GT((*este)["memoria"].get<std::uint64_t>(), 0U);
    EXPECT_TRUE((*este)["caminho"].get<std::string>().find((*este)["processo"]) != std::string::npos);

    const TRodada tabela = Rodar({"processos", "--usuario", (*este)["usuario"].get<std::string>()});
    EXPECT_EQ(tabela.Status, 0);
    EXPECT_NE(tabela.Saida.find((*este)["caminho"].get<std::string>()), std::string::npos);

    EXPECT_EQ(Rodar({"processos", "--usuario", "conta que nao existe"}).Saida,
              "id  memória  usuário  processo  caminho\n");
    EXPECT_EQ(TJson::parse(Rodar({"processos", "--json", "--usuario", "conta que nao existe"}).Saida), TJson::array());
}

TEST(Servico, UmQueNaoExisteNaoSeLe) {
    const std::string frase = "Erro leitura serviço (pode indicar que não está instalado ou que está travado)";
    EXPECT_EQ(Rodar({"servico", "estado", "OryNaoExiste"}), (TRodada{2, "OryNaoExiste: " + frase + "\n", ""}));
    EXPECT_EQ(Rodar({"servico", "estado", "a\"b", "--json"}).Saida,
              R"({"servico":"a\"b","estado":0,"texto":")" + frase + "\",\"processo\":0}\n");
}

}  // namespace
