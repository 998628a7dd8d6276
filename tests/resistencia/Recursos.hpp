#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace OryUtils::Testes {

/// What this process holds of the system, by name: open descriptors on Linux; handles, GDI and USER
/// objects, windows on Windows.
using TRecursos = std::map<std::string, long>;
TRecursos BuscarRecursos();

/// Memory that this process has taken and not given back, in KiB.
long BuscarMemoriaKiB();

/// Children that ended and were never asked for; 0 on Windows, where there are none.
long ContarFilhosMortos();

/// The one of TRecursos that other programs move, too: a window or a program of the system's own may come in between.
inline constexpr const char* CNumeroDeTodos = "highest USER handle";

/// Fails for each kind of resource of which many more have come since AAntes. What is lost at each of some dozens of
/// calls is many; systems keep a few for themselves.
inline void ExigirSemCrescimento(const TRecursos& AAntes, const std::string& ADepoisDe) {
    constexpr long CFolga = 20, CFolgaDeTodos = 100;
    for (const auto& [nome, quantos] : BuscarRecursos())
        EXPECT_LE(quantos, AAntes.at(nome) + (nome == CNumeroDeTodos ? CFolgaDeTodos : CFolga))
            << nome << " after " << ADepoisDe;
}

}  // namespace OryUtils::Testes
