#pragma once

#include "oryutils/runtime/Formatos.hpp"

#include "Comando.hpp"
#include "operations/Operacoes.hpp"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

/// What a run of the command gave.
struct TRodada {
    int Status;
    std::string Saida, Erro;
    bool operator==(const TRodada&) const = default;
    friend std::ostream& operator<<(std::ostream& AFluxo, const TRodada& A) {
        return AFluxo << A.Status << "\n" << A.Saida << "\n" << A.Erro;
    }
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

struct TRecusa {
    std::vector<std::string> Argumentos;
    std::string Frase, Entrada = {};
};
/// Each run ends with that sentence, status 2 and no output.
inline void ConferirRecusas(const std::vector<TRecusa>& ACasos) {
    for (const auto& [argumentos, frase, entrada] : ACasos)
        EXPECT_EQ(Rodar(argumentos, entrada), (TRodada{2, "", "ory: " + frase + "\n"}))
            << testing::PrintToString(argumentos);
}
