#pragma once

#include "operations/Operacoes.hpp"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

// The names of the values of enumerations, taken from the compiler: nobody writes them twice.

namespace Ory {

/// The name of AValor as it is declared, cut out of the compiler's own description of this function; empty for a value
/// that has none.
template <auto AValor>
consteval std::string_view BuscarNomeDoValor() {
    std::string_view nome = __PRETTY_FUNCTION__;
    nome = nome.substr(nome.find("AValor = ") + 9);
    nome = nome.substr(0, nome.find_first_of(";]"));
    if (nome.find('(') != nome.npos) return {};
    const std::size_t qualificador = nome.rfind(':');
    return qualificador == nome.npos ? nome : nome.substr(qualificador + 1);
}

template <typename T>
struct TNomesDosValores {
    static constexpr int CMaisValores = 64;  // the library's enumerations count from 0

    static constexpr auto CTodos = []<int... I>(std::integer_sequence<int, I...>) {
        return std::array{TValorDeEnumeracao{BuscarNomeDoValor<static_cast<T>(I)>(), I}...};
    }
    (std::make_integer_sequence<int, CMaisValores>{});

    static constexpr std::size_t CQuantos = [] {
        std::size_t quantos = 0;
        for (const TValorDeEnumeracao& valor : CTodos) quantos += !valor.Nome.empty();
        return quantos;
    }();

    static constexpr auto CValores = [] {
        std::array<TValorDeEnumeracao, CQuantos> valores{};
        std::size_t quantos = 0;
        for (const TValorDeEnumeracao& valor : CTodos)
            if (!valor.Nome.empty()) valores[quantos++] = valor;
        return valores;
    }();
};

/// The named values of an enumeration; none for another type.
template <typename T>
constexpr std::span<const TValorDeEnumeracao> BuscarValores() {
    if constexpr (std::is_enum_v<T>)
        return TNomesDosValores<T>::CValores;
    else
        return {};
}

}  // namespace Ory
