#include "ory/Apoio.hpp"

#include <gtest/gtest.h>

namespace {

TEST(Servico, UmQueNaoExisteNaoSeLe) {
    const TRodada rodada = Rodar({"servico", "estado", "OryNaoExiste"});
    EXPECT_EQ(rodada.Status, 2);
    EXPECT_EQ(rodada.Saida,
              "OryNaoExiste: Erro leitura serviço (pode indicar que não está instalado ou que está travado)\n");
    EXPECT_EQ(Rodar({"servico", "estado", "a\"b", "--json"}).Saida,
              "{\"servico\":\"a\\\"b\",\"estado\":0,\"texto\":\"Erro leitura serviço (pode indicar que não está "
              "instalado ou que está travado)\",\"processo\":0}\n");
}

TEST(Servico, OQueFaltaEhDito) {
    EXPECT_EQ(Rodar({"servico"}).Erro, "ory: falta o comando; veja ory --ajuda\n");
    EXPECT_EQ(Rodar({"servico", "estado"}).Erro, "ory: falta NOME; veja ory --ajuda\n");
}

}  // namespace
