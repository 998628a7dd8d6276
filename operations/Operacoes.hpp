#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace Ory {

/// A value of an enumeration, by the name that it is declared with.
struct TValorDeEnumeracao {
    std::string_view Nome;
    std::int64_t Valor;
};

/// One argument of an operation, as told to people and as read from a command line.
struct TParametro {
    std::string_view Tipo;
    /// The text of the command line is the value itself; otherwise it is JSON where it reads as JSON.
    bool TextoCru;
    /// Of an enumeration: its values.
    std::span<const TValorDeEnumeracao> Valores{};
};

struct TArgumentos;  // operacoes/Vinculo.hpp

/// A value operation of the library under the name by which programs call it. Overloads carry a suffix after a colon.
struct TOperacao {
    std::string_view Nome;
    std::span<const TParametro> Parametros;
    std::string_view Resultado;
    /// Reads the arguments, calls the operation and appends the result as JSON to ASaida.
    void (*Invocar)(const TArgumentos& AArgumentos, std::string& ASaida);
};

/// All operations of one room of the library, sorted by name; the tables are made by the compiler.
std::span<const TOperacao> BuscarOperacoesDeTexto() noexcept;
std::span<const TOperacao> BuscarOperacoesDeRegistros() noexcept;
std::span<const TOperacao> BuscarOperacoesDeDatas() noexcept;
std::span<const TOperacao> BuscarOperacoesDeSql() noexcept;
std::span<const TOperacao> BuscarOperacoesDeNumeros() noexcept;
std::span<const TOperacao> BuscarOperacoesDeArquivos() noexcept;
std::span<const TOperacao> BuscarOperacoesDeSistema() noexcept;

/// The tables of all rooms.
std::span<const std::span<const TOperacao>> BuscarOperacoes() noexcept;
/// None when no operation has that name.
const TOperacao* BuscarOperacao(std::string_view ANome) noexcept;
/// "ValidouCnpjCpf(TTipoInscricao, texto): lógico", in UTF-8.
std::string DescreverOperacao(const TOperacao& AOperacao);

/// What a process does before its first call: Brazilian formats whatever the machine's, and messages on stderr instead
/// of dialogs.
void PrepararProcesso();

/// The longest request that programs may send; the interfaces refuse a longer one.
inline constexpr std::size_t CMaiorRequisicao = std::size_t{16} << 20;

/// Answers one request of the protocol, both JSON in UTF-8 without a line end:
///   {"op":"ValidouCnpjCpf","args":[1,"11222333000181"]}  ->  {"resultado":true}
/// A failure answers {"erro":"message","classe":"EConvertError"}: the class of the operation's exception, EProtocolo
/// for what is not a request, EOperacaoDesconhecida, EArgumento for a wrong number or kind of arguments. Never throws
/// (short of memory for the answer). Values: see docs/ory.md.
std::string Chamar(std::string_view ARequisicao);

/// As Chamar with the arguments as texts of a command line: a text argument is taken as it stands, any other one is
/// read as JSON where it is JSON (12, true, ["a","b"], null) and as a text where it is not.
std::string ChamarComTextos(std::string_view ANome, std::span<const std::string> AArgumentos);

}  // namespace Ory
