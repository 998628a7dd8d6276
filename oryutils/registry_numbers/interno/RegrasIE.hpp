#pragma once

#include "oryutils/registry_numbers/interno/MotivoRecusa.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

/// The rules of the state registrations as data, and the one algorithm that reads them.
namespace OryUtils::RegrasIE {

inline constexpr std::size_t CMaiorTamanho = 14;
/// Weights and digits fill up with zeros to a width that suits vector operations.
inline constexpr std::size_t CLargura = 16;

/// How a weighted sum s becomes a check digit; r is s mod 11.
enum TRegraDigito : std::uint8_t {
    rdPadrao,     // 0 when r < 2, else 11 - r
    rdVezesDez,   // s * 10 mod 11; 10 becomes 0
    rdOnze,       // 11 - r; 10 becomes 0 and 11 becomes 1
    rdUltimo,     // the last decimal digit of r
    rdGoias,      // as rdPadrao, but r = 1 gives 1 within a range of numbers
    rdNove,       // s mod 9
    rdBahia,      // by the first digit: rdPadrao, or the next multiple of ten
    rdAmapa,      // by the range of the number
    rdAlgarismos  // the decimal digits of the products are added up; what is missing to the next multiple of ten
};

/// Without values it is always right: no weights give 0, as the filling after the number.
struct TDigitoIE {
    std::size_t Lugar = CLargura;  // 1 = leftmost
    std::array<std::int16_t, CLargura> Pesos{};
    TRegraDigito Regra = rdPadrao;
};

/// Up to four characters that an IE may start with; "?" stands for any digit.
struct TInicioIE {
    std::uint64_t Mascara = 0;
    std::uint64_t Valor = 1;  // what no masked start is: an alternative that is not there

    constexpr TInicioIE() = default;
    constexpr TInicioIE(const char* ATexto) : Valor(0) {
        for (int bits = 0; *ATexto; ++ATexto, bits += 16) {
            if (*ATexto == '?') continue;
            Mascara |= std::uint64_t{0xFFFF} << bits;
            Valor |= static_cast<std::uint64_t>(*ATexto - '0') << bits;
        }
    }
};

struct TFormatoIE {
    std::size_t Tamanho;
    std::array<TInicioIE, 5> Inicios;  // one of them
    TDigitoIE Digito1, Digito2 = {};
};

// Weights are written from the leftmost digit; a 0 skips a digit that takes no part.
// clang-format off
inline constexpr std::array<std::int16_t, CLargura> CDe9A2{9,8,7,6,5,4,3,2};

inline constexpr std::array CFormatosAC{
    TFormatoIE{13, {"01"}, {12, {4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}},
    TFormatoIE{ 9, {"01"}, { 9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosAL{TFormatoIE{9, {""}, {9, CDe9A2, rdVezesDez}}};
inline constexpr std::array CFormatosAM{TFormatoIE{9, {""}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosAP{TFormatoIE{9, {"03"}, {9, CDe9A2, rdAmapa}}};
// The second check digit is computed first and takes part, with weight 2, in the first one.
inline constexpr std::array CFormatosBA{
    TFormatoIE{8, {""}, {8, {7,6,5,4,3,2},   rdBahia}, {7, {8,7,6,5,4,3,0,2},   rdBahia}},
    TFormatoIE{9, {""}, {9, {8,7,6,5,4,3,2}, rdBahia}, {8, {9,8,7,6,5,4,3,0,2}, rdBahia}}};
inline constexpr std::array CFormatosCE{TFormatoIE{9, {"0"}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosDF{
    TFormatoIE{13, {"07"}, {12, {4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr std::array CFormatosES{TFormatoIE{9, {""}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosGO{TFormatoIE{9, {""}, {9, CDe9A2, rdGoias}}};
inline constexpr std::array CFormatosMA{TFormatoIE{9, {"12"}, {9, CDe9A2, rdPadrao}}};
// The weights 1 and 2 alternate over the digits with a "0" inserted after the third one.
inline constexpr std::array CFormatosMG{
    TFormatoIE{13, {""}, {12, {1,2,1,1,2,1,2,1,2,1,2}, rdAlgarismos}, {13, {3,2,11,10,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr std::array CFormatosMS{TFormatoIE{9, {"28"}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosMT{TFormatoIE{11, {""}, {11, {3,2,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr std::array CFormatosPA{TFormatoIE{9, {"15"}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosPB{TFormatoIE{9, {"?6"}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosPE{
    TFormatoIE{14, {"18"}, {14, {5,4,3,2,1,9,8,7,6,5,4,3,2}, rdOnze}},
    TFormatoIE{ 9, {""},     { 8, {8,7,6,5,4,3,2}, rdPadrao}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosPI{TFormatoIE{9, {"19"}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosPR{
    TFormatoIE{10, {""}, {9, {3,2,7,6,5,4,3,2}, rdPadrao}, {10, {4,3,2,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr std::array CFormatosRJ{TFormatoIE{8, {"1", "7", "8", "9"}, {8, {2,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr std::array CFormatosRN{TFormatoIE{9, {"20"}, {9, CDe9A2, rdVezesDez}}};
inline constexpr std::array CFormatosRO{
    TFormatoIE{14, {""}, {14, {6,5,4,3,2,9,8,7,6,5,4,3,2}, rdOnze}},
    TFormatoIE{ 9, {""}, { 9, {0,0,0,6,5,4,3,2}, rdOnze}}};
inline constexpr std::array CFormatosRR{TFormatoIE{9, {"24"}, {9, {1,2,3,4,5,6,7,8}, rdNove}}};
inline constexpr std::array CFormatosRS{TFormatoIE{10, {""}, {10, {2,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr std::array CFormatosSC{TFormatoIE{9, {""}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosSE{TFormatoIE{9, {""}, {9, CDe9A2, rdPadrao}}};
inline constexpr std::array CFormatosSP{
    TFormatoIE{12, {""}, {9, {1,3,4,5,6,7,8,10}, rdUltimo}, {12, {3,2,10,9,8,7,6,5,4,3,2}, rdUltimo}}};
// The rural producer's number, after its "P": the last three digits are free.
inline constexpr std::array CFormatosSPRural{TFormatoIE{12, {""}, {9, {1,3,4,5,6,7,8,10}, rdUltimo}}};
// Eleven digits: "29" in front, or a known kind of company in digits 3 and 4; either is enough.
inline constexpr std::array CFormatosTO{
    TFormatoIE{11, {"29", "??01", "??02", "??03", "??99"}, {11, {9,8,0,0,7,6,5,4,3,2}, rdPadrao}},
    TFormatoIE{ 9, {""}, {9, CDe9A2, rdPadrao}}};
// clang-format on

/// Rule rdPadrao of a remainder of 11.
constexpr int CalcularDigitoPadrao(int AResto) noexcept { return AResto < 2 ? 0 : 11 - AResto; }

/// mrNenhum when AIE is written in the format of its length and its check digits are right. AIE is compared digit by
/// digit, so its leading zeros must be there.
TMotivoRecusa Conferir(std::span<const TFormatoIE> AFormatos, std::u16string_view AIE) noexcept;

}  // namespace OryUtils::RegrasIE
