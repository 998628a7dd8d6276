#pragma once

#include "oryutils/characters/Caracteres.hpp"
#include "oryutils/registry_numbers/OryUtilsDocumentos.hpp"
#include "oryutils/runtime/DataHora.hpp"
#include "oryutils/runtime/NumeroTexto.hpp"
#include "oryutils/runtime/Variante.hpp"
#include "oryutils/types/OryTypesSistema.hpp"

#include "operations/Enumeracao.hpp"
#include "operations/Json.hpp"

#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// How each C++ type of the library's signatures travels in JSON. A type says its name for people, how an argument of it
// is read (Ler gives what is kept during the call, Passar what the operation takes) and how a result is written.

namespace Ory {

using OryUtils::Extended;
using OryUtils::TCaracteres;
using OryUtils::TConjuntoCaracteres;
using OryUtils::TDateTime;
using OryUtils::Variant;
using TListaDeTextos = std::vector<std::u16string>;

/// A value of another kind than the operation takes, or a wrong number of them. The message is UTF-8.
struct EArgumento : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Raises EArgumento: what was expected and what came.
[[noreturn]] void RecusarArgumento(std::string_view AEsperado, const TJson& AVeio);

// Reading. Each raises EArgumento for a value of another kind.
std::u16string LerTexto(const TJson& AValor);
char16_t LerCaractere(const TJson& AValor);
std::u16string LerCaracteres(const TJson& AValor);
bool LerLogico(const TJson& AValor);
std::int64_t LerInteiro(const TJson& AValor, std::string_view ATipo, std::int64_t AMenor, std::int64_t AMaior);
/// The value of that name, whatever its letter case; a refusal names the choices.
std::int64_t LerNomeDeValor(const TJson& AValor, std::string_view ATipo, std::span<const TValorDeEnumeracao> AValores);
Extended LerDecimal(const TJson& AValor);
TDateTime LerDataHora(const TJson& AValor);
TListaDeTextos LerLista(const TJson& AValor, std::string_view ATipo);
Variant LerVariante(const TJson& AValor);

// Writing.
void EscreverJson(std::string& ASaida, bool AValor);
void EscreverJson(std::string& ASaida, std::int64_t AValor);
void EscreverJson(std::string& ASaida, Extended AValor);
void EscreverJson(std::string& ASaida, TDateTime AValor);
void EscreverJson(std::string& ASaida, const std::u16string& AValor);
void EscreverJson(std::string& ASaida, const TListaDeTextos& AValor);
void EscreverJson(std::string& ASaida, const std::vector<int>& AValor);
void EscreverJson(std::string& ASaida, const std::optional<TListaDeTextos>& AValor);
void EscreverJson(std::string& ASaida, const OryTypes::TResultStatus& AValor);
void EscreverJson(std::string& ASaida, const Variant& AValor);
void EscreverJson(std::string& ASaida, const OryUtils::TDescricaoDocumento& AValor);
void EscreverJson(std::string& ASaida, const std::vector<OryUtils::TFatoDocumento>& AValor);

template <typename T>
struct TTipoJson;

/// The name of an enumeration as it is declared, cut out of the compiler's own description of this function.
template <typename T>
consteval std::string_view BuscarNomeDoTipo() {
    std::string_view nome = __PRETTY_FUNCTION__;
    nome = nome.substr(nome.find("T = ") + 4);
    nome = nome.substr(0, nome.find_first_of(";]"));
    const std::size_t qualificador = nome.rfind(':');
    return qualificador == std::string_view::npos ? nome : nome.substr(qualificador + 1);
}

template <typename T>
struct TPorValor {
    using TGuardado = T;
    static const T& Passar(const T& AGuardado) { return AGuardado; }
};

template <typename T>
requires std::is_enum_v<T>
struct TTipoJson<T> : TPorValor<T> {
    static constexpr std::string_view Nome = BuscarNomeDoTipo<T>();
    static constexpr bool TextoCru = false;
    // Any ordinal that the type holds, also without a name: operations say what others mean to them.
    using TLimites = std::numeric_limits<std::underlying_type_t<T>>;
    static T Ler(const TJson& AValor) {
        if (AValor.is_string()) return static_cast<T>(LerNomeDeValor(AValor, Nome, BuscarValores<T>()));
        return static_cast<T>(LerInteiro(AValor, Nome, TLimites::min(), TLimites::max()));
    }
};

template <>
struct TTipoJson<int> : TPorValor<int> {
    static constexpr std::string_view Nome = "inteiro";
    static constexpr bool TextoCru = false;
    static int Ler(const TJson& AValor) { return static_cast<int>(LerInteiro(AValor, Nome, INT32_MIN, INT32_MAX)); }
};

template <>
struct TTipoJson<std::uint16_t> : TPorValor<std::uint16_t> {
    static constexpr std::string_view Nome = "inteiro de 16 bits";
    static constexpr bool TextoCru = false;
    static std::uint16_t Ler(const TJson& AValor) {
        return static_cast<std::uint16_t>(LerInteiro(AValor, Nome, 0, UINT16_MAX));
    }
};

template <>
struct TTipoJson<std::int64_t> : TPorValor<std::int64_t> {
    static constexpr std::string_view Nome = "inteiro de 64 bits";
    static constexpr bool TextoCru = false;
    static std::int64_t Ler(const TJson& AValor) { return LerInteiro(AValor, Nome, INT64_MIN, INT64_MAX); }
};

template <>
struct TTipoJson<bool> : TPorValor<bool> {
    static constexpr std::string_view Nome = "lógico";
    static constexpr bool TextoCru = false;
    static bool Ler(const TJson& AValor) { return LerLogico(AValor); }
};

template <>
struct TTipoJson<Extended> : TPorValor<Extended> {
    static constexpr std::string_view Nome = "decimal";
    static constexpr bool TextoCru = false;
    static Extended Ler(const TJson& AValor) { return LerDecimal(AValor); }
};

template <>
struct TTipoJson<TDateTime> : TPorValor<TDateTime> {
    static constexpr std::string_view Nome = "data-hora";
    static constexpr bool TextoCru = true;
    static TDateTime Ler(const TJson& AValor) { return LerDataHora(AValor); }
};

template <>
struct TTipoJson<Variant> : TPorValor<Variant> {
    static constexpr std::string_view Nome = "variante";
    static constexpr bool TextoCru = false;
    static Variant Ler(const TJson& AValor) { return LerVariante(AValor); }
};

template <>
struct TTipoJson<char16_t> : TPorValor<char16_t> {
    static constexpr std::string_view Nome = "caractere";
    static constexpr bool TextoCru = true;
    static char16_t Ler(const TJson& AValor) { return LerCaractere(AValor); }
};

template <>
struct TTipoJson<std::u16string_view> {
    static constexpr std::string_view Nome = "texto";
    static constexpr bool TextoCru = true;
    using TGuardado = std::u16string;
    static TGuardado Ler(const TJson& AValor) { return LerTexto(AValor); }
    static std::u16string_view Passar(const TGuardado& AGuardado) { return AGuardado; }
};

template <>
struct TTipoJson<std::u16string> : TTipoJson<std::u16string_view> {};

template <>
struct TTipoJson<TCaracteres> {
    static constexpr std::string_view Nome = "caracteres";
    static constexpr bool TextoCru = false;
    using TGuardado = std::u16string;
    static TGuardado Ler(const TJson& AValor) { return LerCaracteres(AValor); }
    static TCaracteres Passar(const TGuardado& AGuardado) { return std::u16string_view(AGuardado); }
};

template <>
struct TTipoJson<TConjuntoCaracteres> : TPorValor<TConjuntoCaracteres> {
    static constexpr std::string_view Nome = "conjunto de caracteres";
    static constexpr bool TextoCru = false;
    static TConjuntoCaracteres Ler(const TJson& AValor) {
        return TConjuntoCaracteres(TCaracteres(std::u16string_view(LerCaracteres(AValor))));
    }
};

template <>
struct TTipoJson<TListaDeTextos> : TPorValor<TListaDeTextos> {
    static constexpr std::string_view Nome = "lista de textos";
    static constexpr bool TextoCru = false;
    static TListaDeTextos Ler(const TJson& AValor) { return LerLista(AValor, Nome); }
};

/// Lists of numbers and of Booleans; as results, those of int only.
template <typename T>
requires std::is_arithmetic_v<T>
struct TTipoJson<std::vector<T>> : TPorValor<std::vector<T>> {
    static constexpr std::string_view Nome = std::is_same_v<T, bool> ? "lista de lógicos" : "lista de inteiros";
    static constexpr bool TextoCru = false;
    static std::vector<T> Ler(const TJson& AValor) {
        if (!AValor.is_array()) RecusarArgumento(Nome, AValor);
        std::vector<T> resultado;
        for (const TJson& item : AValor) resultado.push_back(TTipoJson<T>::Ler(item));
        return resultado;
    }
};

template <>
struct TTipoJson<std::optional<TListaDeTextos>> {
    static constexpr std::string_view Nome = "lista de textos ou nulo";
    static constexpr bool TextoCru = false;
    using TGuardado = std::optional<TListaDeTextos>;
    static TGuardado Ler(const TJson& AValor) {
        return AValor.is_null() ? TGuardado() : TGuardado(LerLista(AValor, Nome));
    }
};

template <>
struct TTipoJson<const TListaDeTextos*> : TTipoJson<std::optional<TListaDeTextos>> {
    static const TListaDeTextos* Passar(const TGuardado& AGuardado) { return AGuardado ? &*AGuardado : nullptr; }
};

template <>
struct TTipoJson<OryTypes::TResultStatus> {
    static constexpr std::string_view Nome = "TResultStatus";
};

template <>
struct TTipoJson<OryUtils::TDescricaoDocumento> {
    static constexpr std::string_view Nome = "TDescricaoDocumento";
};

template <>
struct TTipoJson<std::vector<OryUtils::TFatoDocumento>> {
    static constexpr std::string_view Nome = "lista de TFatoDocumento";
};

}  // namespace Ory
