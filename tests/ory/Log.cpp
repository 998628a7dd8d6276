#include "log/Log.hpp"

#include "oryutils/characters/Utf.hpp"

#include "Apoio.hpp"
#include "files/LogApoio.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

namespace fs = std::filesystem;

const std::string CExemplo = ORY_PASTA_DO_PROJETO "/examples/clientes.csv";

class Log : public testing::Test {
protected:
    /// The lines of a file of the folder, without what ends them.
    std::vector<std::string> Ler(const std::string& ANome) const {
        std::vector<std::string> linhas;
        std::ifstream arquivo(Pasta / ANome, std::ios::binary);
        for (std::string linha; std::getline(arquivo, linha);) {
            if (linha.ends_with('\r')) linha.pop_back();
            linhas.push_back(linha);
        }
        return linhas;
    }
    std::string Nome(const std::string& ANome) const { return OryUtils::ParaUtf8(Pasta.Nome(ANome)); }
    /// Those between the header and the footer.
    std::vector<std::string> LerCorpo(const std::string& ANome) const {
        const auto linhas = Ler(ANome);
        if (linhas.size() < 9) return {};
        return {linhas.begin() + 6, linhas.end() - 3};
    }

    const TPastaTemporaria Pasta;
};

TEST_F(Log, LinhasDaEntrada) {
    const std::vector<std::string> opcoes{"log", Nome("a/Rotina.txt"), "--somente-texto", "--codificacao", "utf-8"};
    EXPECT_EQ(Rodar(opcoes, "um\r\n\nação\ncora\xE7\xE3o").Status, 0);
    const auto linhas = Ler("a/Rotina.log");
    ASSERT_EQ(linhas.size(), 6u + 4 + 3);
    EXPECT_EQ(linhas[0], "Início do processo");
    EXPECT_TRUE(linhas[1].starts_with("Aplicação executora: testes_ory"));
    EXPECT_EQ(linhas[11], "Fim do processo");
    EXPECT_EQ(LerCorpo("a/Rotina.log"), (std::vector<std::string>{"um", "", "ação", "coração"}));
    // Again: a new log, or the old one continued.
    auto existente = opcoes;
    existente.insert(existente.end(), {"--existente", "--acrescentar", "--eco"});
    EXPECT_EQ(Rodar(existente, "dois\n").Saida, "dois\n");
    EXPECT_EQ(Ler("a/Rotina.log").size(), linhas.size() + 10);
    EXPECT_EQ(Rodar(opcoes, "").Status, 0);
    EXPECT_EQ(Ler("a/Rotina.log").size(), 9u);
}

TEST_F(Log, DiarioComHora) {
    EXPECT_EQ(Rodar({"log", Nome("D"), "--diario"}, "x\n").Status, 0);
    ASSERT_EQ(std::distance(fs::directory_iterator(Pasta.Caminho()), {}), 1);
    const std::string nome = fs::directory_iterator(Pasta.Caminho())->path().filename().string();
    std::string forma = nome;
    std::replace_if(
        forma.begin(), forma.end(), [](char c) { return c >= '0' && c <= '9'; }, '9');
    EXPECT_EQ(forma, "D_99_99_9999.log");
    EXPECT_TRUE(Ler(nome)[6].starts_with("[") && Ler(nome)[6].ends_with("]: x"));
}

TEST_F(Log, FalhasSaoDitas) {
    fs::create_directories(Pasta / "p.log");
    GravarBytes(Pasta / "q", "um arquivo");
    for (const auto& [nome, motivo] :
         {std::pair<std::string, std::string>{"p", ": é uma pasta"}, {"q/r", ": a pasta não pôde ser criada"}}) {
        const std::string frase = "não foi possível gravar " + Nome(nome) + ".log" + motivo;
        ConferirRecusas({{{"log", Nome(nome)}, frase, "x\n"}});
        const TRodada conferencia = Rodar({"conferir", CExemplo, "--log", Nome(nome)});
        EXPECT_EQ(conferencia.Status, 2);
        EXPECT_EQ(conferencia.Erro, "ory: " + frase + "\n");
    }
}

/// Lines that come one by one, each on a day of its own.
struct TEntradaDeDias final : Ory::TEntrada {
    explicit TEntradaDeDias(TAmbienteDeTeste& AMundo) : FMundo(AMundo) {}
    std::size_t Ler(std::span<char> ADestino) override {
        if (FDia == 17) return 0;
        FMundo.Marcar(2026, 11, ++FDia, 8);
        return std::string_view("linha\n").copy(ADestino.data(), ADestino.size());
    }

private:
    TAmbienteDeTeste& FMundo;
    int FDia = 14;
};

TEST_F(Log, UmDiaQueNaoSeGravaEhDito) {
    TAmbienteDeTeste mundo;
    TEntradaDeDias entrada(mundo);
    Ory::TSaidaDeTexto saida, erro;
    Ory::TAmbiente ambiente{.Entrada = entrada, .Saida = saida, .Erro = erro};
    fs::create_directories(Pasta / "S_16_11_2026.log");
    EXPECT_EQ(Ory::EscreverLog({.Arquivo = Nome("S"), .Diario = true}, ambiente, mundo), 2);
    EXPECT_EQ(erro.Texto, "ory: não foi possível gravar " + Nome("S_16_11_2026.log") + ": é uma pasta\n");
    for (const char* dia : {"15", "17"}) EXPECT_EQ(Ler("S_" + std::string(dia) + "_11_2026.log").size(), 10u) << dia;
}

struct TSaidaQueSeFecha final : Ory::TSaida {
    void Escrever(std::string_view) override { throw Ory::ESaidaFechada(); }
};
struct TEntradaQueFalha final : Ory::TEntrada {
    std::size_t Ler(std::span<char> ADestino) override {
        if (FJahLeu) throw Ory::EFalha("não foi possível ler o cano");
        FJahLeu = true;
        return std::string_view("um\ndo").copy(ADestino.data(), ADestino.size());
    }

private:
    bool FJahLeu = false;
};

TEST_F(Log, OQueJahVeioFicaNoLog) {
    const Ory::TPedidoDeLog pedido{.Arquivo = Nome("V"), .Codificacao = "utf-8", .SomenteTexto = true, .Eco = true};
    Ory::TEntradaDeTexto texto("um\ndois\n", 3);
    TSaidaQueSeFecha fechada;
    Ory::TSaidaDeTexto saida, erro;
    Ory::TAmbiente semEco{.Entrada = texto, .Saida = fechada, .Erro = erro};
    EXPECT_EQ(Ory::EscreverLog(pedido, semEco), 0) << "as in: ory log x --eco | head -1";
    EXPECT_EQ(LerCorpo("V.log"), (std::vector<std::string>{"um", "dois"}));

    TEntradaQueFalha falha;
    Ory::TAmbiente semEntrada{.Entrada = falha, .Saida = saida, .Erro = erro};
    EXPECT_THROW(Ory::EscreverLog(pedido, semEntrada), Ory::EFalha);
    EXPECT_EQ(LerCorpo("V.log"), (std::vector<std::string>{"um", "Falha: não foi possível ler o cano"}));
}

TEST_F(Log, DaConferencia) {
    const TRodada semLog = Rodar({"conferir", CExemplo});
    const TRodada comLog = Rodar({"conferir", CExemplo, "--log", Nome("C")});
    EXPECT_EQ(comLog.Status, semLog.Status);
    EXPECT_EQ(comLog.Saida, semLog.Saida) << "the log changes nothing else";
    const std::string bytes = LerBytes(Pasta / "C.log");
    for (const char* trecho : {"clientes.csv: 42 registros", "11111111000192", "Fim do processo"})
        EXPECT_NE(bytes.find(trecho), bytes.npos) << trecho;
    EXPECT_EQ(Rodar({"conferir", Nome("nenhum.csv"), "--log", Nome("F")}).Status, 2);
    ASSERT_EQ(Ler("F.log").size(), 11u);
    EXPECT_NE(Ler("F.log")[7].find("Falha: "), std::string::npos);
}

}  // namespace
