#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

namespace Testes {

/// What an operation gave, what it should have given, and why.
template <typename TValor>
struct TCaso {
    TValor Obtido, Esperado;
    const char* Porque = "";
};

template <typename TValor>
void Conferir(std::initializer_list<TCaso<TValor>> ACasos) {
    for (const TCaso<TValor>& caso : ACasos)
        EXPECT_EQ(caso.Obtido, caso.Esperado) << "row " << &caso - ACasos.begin() + 1 << ": " << caso.Porque;
}

}  // namespace Testes
