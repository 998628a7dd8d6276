#pragma once

#include "Fluxos.hpp"

#include <cstdint>
#include <optional>

namespace Ory {

/// A progress bar on one line of a terminal. It is drawn again only when it would look different.
class TProgresso {
public:
    /// ATotal  bytes to come; none when nobody knows: then the bytes read so far are shown.
    TProgresso(TSaida& ASaida, std::optional<std::uint64_t> ATotal) : FSaida(ASaida), FTotal(ATotal) {}
    TProgresso(const TProgresso&) = delete;
    TProgresso& operator=(const TProgresso&) = delete;
    ~TProgresso();

    void Mostrar(std::uint64_t ABytes);
    /// Clears the line.
    void Apagar();

private:
    void Escrever(const std::string& ATexto);

    TSaida& FSaida;
    std::optional<std::uint64_t> FTotal;
    std::optional<std::uint64_t> FMostrado{};  // percent, or units of 16 MiB
    std::size_t FLargura = 0;
};

}  // namespace Ory
