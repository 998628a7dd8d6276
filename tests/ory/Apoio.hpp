#pragma once

#include "oryutils/runtime/Formatos.hpp"

#include "Comando.hpp"
#include "operations/Operacoes.hpp"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What a run of the command gave.
struct TRodada {
    int Status;
    std::string Saida, Erro;
};

/// Runs the command over texts, with the formats that main sets.
inline TRodada Rodar(const std::vector<std::string>& AArgumentos, std::string_view AEntrada = {}) {
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    Ory::TEntradaDeTexto entrada(AEntrada);
    Ory::TSaidaDeTexto saida;
    Ory::TSaidaDeTexto erro;
    Ory::TAmbiente ambiente{.Entrada = entrada, .Saida = saida, .Erro = erro};
    const int status = Ory::Executar(AArgumentos, ambiente);
    return {status, saida.Texto, erro.Texto};
}

/// Each request, called as programs do, and its answer.
inline void ConferirChamadas(std::initializer_list<std::pair<std::string_view, std::string_view>> ACasos) {
    const OryUtils::TFormatosTemporarios formatos(OryUtils::BuscarFormatosBrasileiros());
    for (const auto& [pergunta, resposta] : ACasos) EXPECT_EQ(Ory::Chamar(pergunta), resposta) << pergunta;
}
