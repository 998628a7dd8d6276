#pragma once

#include "oryutils/runtime/Formatos.hpp"

#include "Comando.hpp"

#include <string>
#include <string_view>
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
