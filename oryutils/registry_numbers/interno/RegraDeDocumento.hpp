#pragma once

#include "oryutils/registry_numbers/MotivoRecusa.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

/// The language in which numbers with check digits are written down, and its interpreter. A document is one row or a
/// list of rows, one for each form of its number; the number is valid when one row accepts it.
/// Example: nine digits that start with 28 or with 50 to 59; the last one is computed from the others.
///   constexpr TFormatoDocumento CExemplo[] = {{9, {"28 50-59"}, {{9, {9, 8, 7, 6, 5, 4, 3, 2}}}}};
///   Conferir(CExemplo, LerNumero(u"28.000.000-6", EhMarca))  ->  mrNenhum
namespace OryUtils::Interno {

/// The size of the arrays that have an entry for each character: one more than the longest number has. A document that
/// needs more, here or in the arrays of a row, makes them larger.
inline constexpr std::size_t CLugares = 16;

inline constexpr std::int16_t CSemValor = 99;

/// The value of a character in a sum: 0 to 9 for a digit, its code less that of "0" for a capital letter (17 to 42) and
/// for its small one, CSemValor for anything else.
template <typename C>
constexpr std::int16_t ValorDe(C ACaractere) noexcept {
    const auto codigo = static_cast<unsigned>(static_cast<std::make_unsigned_t<C>>(ACaractere));
    if (codigo - '0' <= 9) return static_cast<std::int16_t>(codigo - '0');
    const unsigned letra = (codigo | 0x20) - 'a';
    return letra < 26 ? static_cast<std::int16_t>('A' - '0' + letra) : CSemValor;
}

/// A number as the values of its characters, 0 behind the last one.
struct TNumeroLido {
    std::array<std::int16_t, CLugares> Valores{};
    std::size_t Tamanho = 0;  // CLugares for every number that is too long
};

/// The characters of ATexto of which ASobra does not say true. Stops when there are too many for any document.
template <typename C, typename TSobra>
constexpr TNumeroLido LerNumero(std::basic_string_view<C> ATexto, TSobra ASobra) noexcept {
    TNumeroLido numero;
    std::size_t lidos = 0;
    for (const C c : ATexto) {
        numero.Valores[lidos] = ValorDe(c);
        lidos += !ASobra(c);
        if (lidos == CLugares) break;
    }
    if (lidos < CLugares) numero.Valores[lidos] = 0;
    numero.Tamanho = lidos;
    return numero;
}

/// Appends AMascara to ASaida with the characters of ANumero in the places of its "0"; letters come in upper case.
template <typename C>
constexpr void EscreverNaMascara(std::basic_string<C>& ASaida, std::string_view AMascara, const TNumeroLido& ANumero) {
    std::size_t lidos = 0;
    for (const char lugar : AMascara) ASaida += static_cast<C>(lugar == '0' ? '0' + ANumero.Valores[lidos++] : lugar);
}

/// What is added up to the sum of a check digit.
enum TParcelas : std::uint8_t {
    paProdutos,        // the products of values and weights
    paAlgarismos,      // the decimal digits of these products, which have two at most
    paDezenaEUnidade,  // the last two decimal digits of the sum of the products
};

/// How a sum becomes a check digit: the character of DoResto at the remainder of the sum and Acrescimo by the length of
/// DoResto. A "-" stands where no digit is right.
struct TRegraDigito {
    std::string_view DoResto = "00987654321";
    TParcelas Parcelas = paProdutos;
    int Acrescimo = 0;
};

/// 11 less the remainder; 10 and 11 become 0.
inline constexpr TRegraDigito CModulo11{};
/// What the sum lacks to the next multiple of ten.
inline constexpr TRegraDigito CModulo10{"0987654321"};
/// The last decimal digit of the remainder by 11.
inline constexpr TRegraDigito CResto11{"01234567890"};

constexpr std::int16_t CalcularDigito(const TRegraDigito& ARegra, int ASoma) noexcept {
    if (ARegra.Parcelas == paDezenaEUnidade) ASoma = ASoma % 10 + ASoma / 10 % 10;
    const unsigned soma = static_cast<unsigned>(ASoma + ARegra.Acrescimo);
    return ValorDe(ARegra.DoResto[soma % static_cast<unsigned>(ARegra.DoResto.size())]);
}

/// The weight of each character, the leftmost one first. A weight of 0 leaves its character out.
using TPesos = std::array<std::int16_t, CLugares>;

/// The check digit at Lugar, 1 being leftmost.
struct TDigitoVerificador {
    std::size_t Lugar = 0;
    TPesos Pesos{};
    TRegraDigito Regra{};
};

constexpr std::int16_t CalcularDigito(const TDigitoVerificador& ADigito, const TNumeroLido& ANumero) noexcept {
    int soma = 0;
    for (std::size_t i = 0; i < CLugares; ++i) soma += ANumero.Valores[i] * ADigito.Pesos[i];
    if (ADigito.Regra.Parcelas == paAlgarismos)  // the ten of a product counts 1
        for (std::size_t i = 0; i < CLugares; ++i) soma -= ANumero.Valores[i] * ADigito.Pesos[i] / 10 * 9;
    return CalcularDigito(ADigito.Regra, soma);
}

/// The integer that the digits from a place on must make: a list of integers and ranges, all of one width.
/// Example:  {"07-09 12"}  at the start,  {"01-03 99", 3}  from the third character on.
struct TExigencia {
    struct TFaixa {
        int De = 0, Ate = 0;
    };
    std::size_t Lugar = 1, Largura = 0;
    std::array<TFaixa, 20> Faixas{};
    std::size_t Quantas = 0;

    constexpr TExigencia() = default;
    consteval TExigencia(const char* ALista, std::size_t ALugar = 1) : Lugar(ALugar) {
        std::string_view lista = ALista;
        Largura = std::min(lista.find_first_of("- "), lista.size());
        const auto ler = [](std::string_view AInteiro) {
            int inteiro = 0;
            for (const char c : AInteiro) inteiro = inteiro * 10 + ValorDe(c);
            return inteiro;
        };
        while (!lista.empty()) {
            const std::string_view item = lista.substr(0, lista.find(' '));
            if (item.size() != Largura && item.size() != 2 * Largura + 1) throw "the integers are not of one width";
            Faixas.at(Quantas++) = {ler(item.substr(0, Largura)), ler(item.substr(item.size() - Largura))};
            lista.remove_prefix(std::min(item.size() + 1, lista.size()));
        }
    }
};

constexpr bool Cumpre(const TExigencia& AExigencia, const TNumeroLido& ANumero) noexcept {
    if (AExigencia.Quantas == 0) return true;
    int inteiro = 0;
    for (std::size_t i = 0; i < AExigencia.Largura; ++i)
        inteiro = inteiro * 10 + ANumero.Valores[AExigencia.Lugar - 1 + i];
    for (std::size_t i = 0; i < AExigencia.Quantas; ++i)
        if (inteiro >= AExigencia.Faixas[i].De && inteiro <= AExigencia.Faixas[i].Ate) return true;
    return false;
}

/// One row: a form of the number.
struct TFormatoDocumento {
    std::size_t Tamanho = 0;
    std::array<std::int16_t, CLugares> MaiorValor{};  // of each character
    std::array<TExigencia, 2> Exigencias{};
    /// In the order in which they are computed.
    std::array<TDigitoVerificador, 2> Digitos{};
    /// The number as people write it, with "0" for each of its characters; empty when it has no punctuation.
    std::string_view Mascara{};

    /// ALetras  how many of the first characters may also be letters; the others are digits
    consteval TFormatoDocumento(std::size_t ATamanho, std::initializer_list<TExigencia> AExigencias,
                                std::initializer_list<TDigitoVerificador> ADigitos, std::string_view AMascara = {},
                                std::size_t ALetras = 0)
        : Tamanho(ATamanho), Mascara(AMascara) {
        if (Tamanho >= CLugares) throw "CLugares is too small";
        MaiorValor.fill(std::numeric_limits<std::int16_t>::max());
        std::fill_n(MaiorValor.begin(), Tamanho, ValorDe('9'));
        std::fill_n(MaiorValor.begin(), ALetras, ValorDe('Z'));
        for (std::size_t i = 0; const TExigencia& exigencia : AExigencias) Exigencias.at(i++) = exigencia;
        for (std::size_t i = 0; const TDigitoVerificador& digito : ADigitos) Digitos.at(i++) = digito;
    }
};

/// Whether each character of ANumero may stand where it stands. A character too many is not looked at.
constexpr bool TemSoCaracteresPermitidos(const TFormatoDocumento& AFormato, const TNumeroLido& ANumero) noexcept {
    std::int16_t excesso = std::numeric_limits<std::int16_t>::min();
    for (std::size_t i = 0; i < CLugares; ++i)
        excesso = std::max(excesso, static_cast<std::int16_t>(ANumero.Valores[i] - AFormato.MaiorValor[i]));
    return excesso <= 0;
}

constexpr TMotivoRecusa Conferir(const TFormatoDocumento& AFormato, const TNumeroLido& ANumero) noexcept {
    if (ANumero.Tamanho != AFormato.Tamanho) return mrTamanho;
    if (!TemSoCaracteresPermitidos(AFormato, ANumero)) return mrCaractere;
    for (const TExigencia& exigencia : AFormato.Exigencias)
        if (!Cumpre(exigencia, ANumero)) return mrPrefixo;
    for (const TDigitoVerificador& digito : AFormato.Digitos)
        if (digito.Lugar && CalcularDigito(digito, ANumero) != ANumero.Valores[digito.Lugar - 1]) return mrDigito;
    return mrNenhum;
}

/// mrNenhum when one of the rows accepts ANumero, otherwise the reason of the row that came furthest.
constexpr TMotivoRecusa Conferir(std::span<const TFormatoDocumento> AFormatos, const TNumeroLido& ANumero) noexcept {
    static_assert(mrTamanho < mrCaractere && mrCaractere < mrPrefixo && mrPrefixo < mrDigito);
    TMotivoRecusa motivo = mrTamanho;
    for (const TFormatoDocumento& formato : AFormatos) {
        const TMotivoRecusa desteFormato = Conferir(formato, ANumero);
        if (desteFormato == mrNenhum) return mrNenhum;
        motivo = std::max(motivo, desteFormato);
    }
    return motivo;
}

/// ATexto has nothing but the characters of its number.
template <typename C>
constexpr TMotivoRecusa Conferir(std::span<const TFormatoDocumento> AFormatos,
                                 std::basic_string_view<C> ATexto) noexcept {
    return Conferir(AFormatos, LerNumero(ATexto, [](C) { return false; }));
}

}  // namespace OryUtils::Interno
