#include "oryutils/characters/Utf.hpp"

#include "atualizador/Atualizacao.hpp"

#include <gtest/gtest.h>

namespace {

using Exemplos::TAtualizacao;
using Exemplos::TBanco;
using Exemplos::TLinha;

struct TDiario {
    std::vector<std::string> Linhas{};
    void Anotar(OryUtils::TObjeto*, std::u16string_view ATexto) { Linhas.push_back(OryUtils::ParaUtf8(ATexto)); }
};

/// Upgrades as a program does that is started anew: what it tells.
std::vector<std::string> Atualizar(TBanco& ABanco, bool AEspera,
                                   std::u16string_view AAte = Exemplos::BuscarVersaoMaisNova()) {
    TDiario diario;
    TAtualizacao atualizacao(ABanco);
    atualizacao.OnDizer = OryUtils::TEventoStatusExecucao::De<&TDiario::Anotar>(diario);
    EXPECT_EQ(atualizacao.Atualizar(AAte), AEspera);
    return diario.Linhas;
}

std::string Executando(const std::string& AVersao) { return "Executando alterações referente a versão: " + AVersao; }

TEST(Atualizador, PassoQueOBancoRecusaEsperaEOsSeguintesComEle) {
    using TTextos = std::vector<std::string>;
    const std::filesystem::path arquivo = ORY_PASTA_DE_TESTE "/atualizador_com_falha.fdb";
    {
        TBanco antigo = TBanco::Criar(arquivo);
        EXPECT_EQ(Atualizar(antigo, true, u"01.00"), TTextos{Executando("01.00")});
        EXPECT_EQ(Atualizar(antigo, true, u"01.00"), TTextos{}) << "a second run does nothing";
        antigo.ExecutarParaCada(u"INSERT INTO CLIENTE (CODIGO, NOME, CNPJ) VALUES (?, ?, ?)",
                                {{u"1", u"Padaria Sol", u"11222333000181"},
                                 {u"2", u"Padaria do Sol", u"11.222.333/0001-81"},
                                 {u"3", u"Mercearia", u"em branco"},
                                 {u"4", u"Quitanda", {}}});
    }
    TBanco banco = TBanco::Abrir(arquivo);
    for (int vez = 0; vez < 2; ++vez) {
        const TTextos ditas = Atualizar(banco, false);
        const std::size_t antes = vez == 0 ? 1 : 0;
        ASSERT_EQ(ditas.size(), 4 + antes) << testing::PrintToString(ditas);
        EXPECT_EQ(ditas[0], Executando(vez == 0 ? "01.01" : "01.02"));
        EXPECT_EQ(ditas[antes], Executando("01.02"));
        EXPECT_NE(ditas[antes + 1].find("CLIENTE_CNPJ"), std::string::npos) << "the database's own words";
        EXPECT_EQ(ditas[antes + 2], Executando("02.00"));
        EXPECT_EQ(ditas[antes + 3], "  não executada: Operação cancelada");
        EXPECT_EQ(TAtualizacao(banco).BuscarVersao(), u"01.01");
    }
    // With the double gone the upgrade goes on where it stopped.
    banco.Executar(u"DELETE FROM CLIENTE WHERE CODIGO = 2");
    EXPECT_EQ(Atualizar(banco, true), (TTextos{Executando("01.02"), Executando("02.00")}));
    EXPECT_EQ(Atualizar(banco, true), TTextos{});
    const std::vector<TLinha> esperadas{{u"1", u"11.222.333/0001-81", {}}, {u"3", u"em branco", {}}, {u"4", {}, {}}};
    EXPECT_EQ(banco.Consultar(u"SELECT CODIGO, CNPJ, MUNICIPIO FROM CLIENTE ORDER BY CODIGO"), esperadas);
    EXPECT_EQ(banco.Consultar(u"SELECT VERSAO FROM ALTERACAO ORDER BY VERSAO"),
              (std::vector<TLinha>{{u"01.00"}, {u"01.01"}, {u"01.02"}, {u"02.00"}}));
}

}  // namespace
