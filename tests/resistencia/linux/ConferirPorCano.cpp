// The command reads from a pipe as many rows as anybody cares to send, in the same memory.
#include "resistencia/Quantidade.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <csignal>
#include <iostream>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int CLinhasDoBloco = 1000;

std::string MontarBloco() {
    std::string bloco;
    for (int i = 0; i < CLinhasDoBloco; ++i) {
        bloco += "Cliente " + std::to_string(i) + (i % 3 ? ";11222333000181;" : ";\"11.222.333/0001-81\";");
        bloco += i == 7 ? "52998224720" : i % 5 ? "52998224725" : "529.982.247-25";
        bloco += ";SP;110.042.490.114\n";
    }
    return bloco;
}

struct TRodada {
    nlohmann::json Resumo;
    long PicoKiB = 0;
};

void Conferir(int ALinhas, TRodada& ARodada) {
    int entrada[2], saida[2];
    ASSERT_EQ(::pipe(entrada), 0);
    ASSERT_EQ(::pipe(saida), 0);
    posix_spawn_file_actions_t acoes;
    ::posix_spawn_file_actions_init(&acoes);
    ::posix_spawn_file_actions_adddup2(&acoes, entrada[0], 0);
    ::posix_spawn_file_actions_adddup2(&acoes, saida[1], 1);
    for (const int descritor : {entrada[0], entrada[1], saida[0], saida[1]})
        ::posix_spawn_file_actions_addclose(&acoes, descritor);
    std::string comando = "ory", conferir = "conferir", fonte = "-", json = "--json";
    char* argumentos[] = {comando.data(), conferir.data(), fonte.data(), json.data(), nullptr};
    pid_t filho = 0;
    ASSERT_EQ(::posix_spawn(&filho, ORY_COMANDO, &acoes, nullptr, argumentos, environ), 0);
    ::posix_spawn_file_actions_destroy(&acoes);
    ::close(entrada[0]);
    ::close(saida[1]);

    const auto escrever = [&](std::string_view ABytes) {
        while (!ABytes.empty()) {
            const ssize_t escritos = ::write(entrada[1], ABytes.data(), ABytes.size());
            if (escritos < 0) return false;
            ABytes.remove_prefix(static_cast<std::size_t>(escritos));
        }
        return true;
    };
    const std::string bloco = MontarBloco();
    bool foi = escrever("nome;cnpj;cpf;uf;ie\n");
    for (int i = 0; foi && i < ALinhas; i += CLinhasDoBloco) foi = escrever(bloco);
    ::close(entrada[1]);
    std::string resposta;
    char parte[4096];
    for (ssize_t lidos = 0; (lidos = ::read(saida[0], parte, sizeof parte)) > 0;)
        resposta.append(parte, static_cast<std::size_t>(lidos));
    ::close(saida[0]);
    int status = 0;
    rusage uso{};
    ASSERT_EQ(::wait4(filho, &status, 0, &uso), filho);
    ASSERT_TRUE(foi);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << "some are invalid: " << status;
    ARodada = {nlohmann::json::parse(resposta), uso.ru_maxrss};
}

TEST(Resistencia, ConferirPorUmCanoEmMemoriaConstante) {
    ::signal(SIGPIPE, SIG_IGN);
    const int linhas = OryUtils::Testes::Quantidade(200'000, 10'000'000);
    TRodada pouca, muita;
    Conferir(linhas / 10, pouca);
    Conferir(linhas, muita);
    if (HasFatalFailure()) return;
    EXPECT_EQ(muita.Resumo["registros"], linhas);
    ASSERT_EQ(muita.Resumo["colunas"].size(), 3u) << muita.Resumo;
    EXPECT_EQ(muita.Resumo["colunas"][0]["validos"], linhas);
    EXPECT_EQ(muita.Resumo["colunas"][1]["invalidos"], linhas / CLinhasDoBloco);
    EXPECT_EQ(muita.Resumo["colunas"][2]["validos"], linhas);
    std::cout << linhas / 10 << " rows: " << pouca.PicoKiB << " KiB at the most; " << linhas
              << " rows: " << muita.PicoKiB << " KiB\n";
    EXPECT_LE(muita.PicoKiB, pouca.PicoKiB + 4096) << "ten times the rows";
    EXPECT_LE(muita.PicoKiB, 64 * 1024);
}

}  // namespace
