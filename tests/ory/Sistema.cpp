#include "sistema/Sistema.hpp"

#include "oryutils/characters/Utf.hpp"
#include "oryutils/system/OryUtilsSystem.hpp"

#include "Apoio.hpp"
#include "operations/Json.hpp"

#include <gtest/gtest.h>

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
    const Ory::TJson json = Ory::TJson::parse(rodada.Saida);
    EXPECT_EQ(json["maquina"]["computador"], OryUtils::ParaUtf8(OryUtils::GetNomeComputador()));
    EXPECT_EQ(json["pastas"]["temporaria"], OryUtils::ParaUtf8(OryUtils::GetPastaTempWindows()));
    EXPECT_EQ(json["discos"].size(), OryUtils::TOryUtilsSistema::BuscarListaDrivesComputador().size());
    EXPECT_EQ(rodada.Status, rodada.Erro.empty() ? 0 : 1);
    EXPECT_NE(Rodar({"sistema"}).Saida.find(OryUtils::ParaUtf8(OryUtils::GetNomeComputador())), std::string::npos);
}

TEST(Sistema, OperacoesPeloNome) {
    ConferirChamadas({
        {R"({"op":"FormatarBytes","args":[9223372036854775807,4]})", R"({"resultado":8388607})"},
        {R"({"op":"ExtrairEnderecoMACComandoARP","args":["x\r\n 10.0.0.1 0a-1b-2c-3d-4e-5f din"]})",
         R"({"resultado":"0A-1B-2C-3D-4E-5F"})"},
        {R"({"op":"VarToIntDef","args":[null,7]})", R"({"resultado":7})"},
        {R"({"op":"LinhasDaSaidaDeComando","args":[" a\r\n b \nc\n"]})", R"({"resultado":["a"," b ","c"]})"},
        {R"({"op":"ListaIPLocalDaSaidaARP","args":["\r\nInterface: 10.0.0.2 --- 0x3\n 10.0.0.1\rInterface: 10.0.0.3"]})",
         R"({"resultado":["10.0.0.2","10.0.0.3"]})"},
        {R"({"op":"InformacoesDetalhadas","args":["","",-9223372036854775808,1,9]})",
         R"({"resultado":"Informações detalhadas da unidade: \r\n\r\nUnidade:  \r\nNome:  \r\nEspaço total: )"
         R"(-9223372036854775808 \r\nEspaço livre: 1 \r\nEspaço usado: 9223372036854775807 "})"},
    });
}
