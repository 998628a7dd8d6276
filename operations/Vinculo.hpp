#pragma once

#include "operations/Conversao.hpp"
#include "operations/Operacoes.hpp"

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

// Binds a name to a function. What the arguments are and how the result travels is deduced from the C++ signature.

namespace Ory {

/// The arguments of a request, already as many as the operation takes.
struct TArgumentos {
    std::span<const TJson> Valores;
};

/// Runs ALer for the argument of that number; its refusal tells which one it was.
template <typename TLer>
auto LerArgumento(std::size_t ANumero, TLer ALer) {
    try {
        return ALer();
    } catch (const EArgumento& erro) {
        throw EArgumento("argumento " + std::to_string(ANumero) + ": " + erro.what());
    }
}

template <typename... TArgs>
inline constexpr std::array<TParametro, sizeof...(TArgs)> CParametros{
    TParametro{TTipoJson<TArgs>::Nome, TTipoJson<TArgs>::TextoCru, BuscarValores<TArgs>()}...};

template <typename TFuncao>
struct TAssinatura;

template <typename TResultado, typename... TArgs>
struct TAssinatura<TResultado (*)(TArgs...)> {
    using TRetorno = std::remove_cvref_t<TResultado>;
    static constexpr std::span<const TParametro> Parametros{CParametros<std::remove_cvref_t<TArgs>...>};

    template <auto AFuncao>
    static void Invocar(const TArgumentos& AArgumentos, std::string& ASaida) {
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            // In braces: read from the first to the last.
            const std::tuple<typename TTipoJson<std::remove_cvref_t<TArgs>>::TGuardado...> guardados{LerArgumento(
                I + 1, [&] { return TTipoJson<std::remove_cvref_t<TArgs>>::Ler(AArgumentos.Valores[I]); })...};
            static_cast<void>(guardados);
            const TRetorno resultado =
                AFuncao(TTipoJson<std::remove_cvref_t<TArgs>>::Passar(std::get<I>(guardados))...);
            if constexpr (std::is_enum_v<TRetorno> || (std::is_integral_v<TRetorno> && !std::is_same_v<TRetorno, bool>))
                EscreverJson(ASaida, static_cast<std::int64_t>(resultado));
            else
                EscreverJson(ASaida, resultado);
        }
        (std::index_sequence_for<TArgs...>{});
    }
};

template <typename TResultado, typename... TArgs>
struct TAssinatura<TResultado (*)(TArgs...) noexcept> : TAssinatura<TResultado (*)(TArgs...)> {};

/// The operation ANome: AFuncao is a function, or a lambda without captures where one entry joins several calls. Of an
/// overloaded function the wanted signature is given: Operacao<Sobrecarga<bool(int)>(F)>("F").
template <auto AFuncao>
constexpr TOperacao Operacao(std::string_view ANome) {
    constexpr auto CFuncao = +AFuncao;
    using TFuncao = TAssinatura<std::remove_const_t<decltype(CFuncao)>>;
    return {ANome, TFuncao::Parametros, TTipoJson<typename TFuncao::TRetorno>::Nome,
            &TFuncao::template Invocar<CFuncao>};
}

template <typename TFuncao>
constexpr TFuncao* Sobrecarga(TFuncao* AFuncao) {
    return AFuncao;
}

/// The table in the order of the names, for the search.
template <std::size_t ATamanho>
consteval std::array<TOperacao, ATamanho> Ordenar(std::array<TOperacao, ATamanho> ATabela) {
    std::sort(ATabela.begin(), ATabela.end(), [](const TOperacao& A, const TOperacao& B) { return A.Nome < B.Nome; });
    return ATabela;
}

/// For a static_assert: no name stands twice in a sorted table.
template <std::size_t ATamanho>
consteval bool NomesSaoUnicos(const std::array<TOperacao, ATamanho>& ATabela) {
    return std::adjacent_find(ATabela.begin(), ATabela.end(),
                              [](const TOperacao& A, const TOperacao& B) { return A.Nome == B.Nome; }) == ATabela.end();
}

}  // namespace Ory
