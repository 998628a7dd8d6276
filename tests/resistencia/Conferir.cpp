// The command checks as many rows as anybody cares to send, in the same memory.
#include "conferir/Conferencia.hpp"
#include "resistencia/Quantidade.hpp"
#include "resistencia/Recursos.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

namespace OryUtils::Testes {
namespace {

constexpr int CLinhasDoBloco = 1000;

/// The rows of some customers, over and over; looks at the memory of the process meanwhile.
class TClientes final : public Ory::TEntrada {
public:
    explicit TClientes(int ALinhas) : FBlocos(ALinhas / CLinhasDoBloco) {
        for (int i = 0; i < CLinhasDoBloco; ++i) {
            FBloco += "Cliente " + std::to_string(i) + (i % 3 ? ";11222333000181;" : ";\"11.222.333/0001-81\";");
            FBloco += i == 7 ? "52998224720" : i % 5 ? "52998224725" : "529.982.247-25";
            FBloco += ";SP;110.042.490.114\n";
        }
    }
    long GetPicoKiB() const noexcept { return FPico; }

    std::size_t Ler(std::span<char> ADestino) override {
        if (FResto.empty() && FBlocos-- > 0) {
            FResto = FBloco;
            FPico = std::max(FPico, BuscarMemoriaKiB());
        }
        const std::size_t lidos = FResto.copy(ADestino.data(), ADestino.size());
        FResto.remove_prefix(lidos);
        return lidos;
    }

private:
    int FBlocos;
    std::string FBloco{};
    std::string_view FResto = "nome;cnpj;cpf;uf;ie\n";
    long FPico = 0;
};

TEST(Resistencia, ConferirEmMemoriaConstante) {
    const int linhas = Quantidade(200'000, 10'000'000);
    TClientes poucos(linhas / 10);
    TClientes muitos(linhas);
    Ory::ConferirCsv(poucos, nullptr, {});
    const Ory::TResumo resumo = Ory::ConferirCsv(muitos, nullptr, {});
    EXPECT_EQ(resumo.Registros, linhas);
    ASSERT_EQ(resumo.Colunas.size(), 3u);
    EXPECT_EQ(resumo.Colunas[0].Validos, linhas);
    EXPECT_EQ(resumo.Colunas[1].Invalidos, linhas / CLinhasDoBloco);
    EXPECT_EQ(resumo.Colunas[2].Validos, linhas);
    std::cout << linhas / 10 << " rows: " << poucos.GetPicoKiB() << " KiB at the most; " << linhas
              << " rows: " << muitos.GetPicoKiB() << " KiB\n";
    EXPECT_LE(muitos.GetPicoKiB(), poucos.GetPicoKiB() + 1024) << "ten times the rows";
}

}  // namespace
}  // namespace OryUtils::Testes
