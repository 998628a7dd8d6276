#pragma once

#include "oryutils/registry_numbers/interno/MotivoRecusa.hpp"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string_view>

/// The rules of the state registrations as data, and the one algorithm that reads them.
namespace OryUtils::RegrasIE {

inline constexpr std::size_t CMaiorTamanho = 14;
/// The largest weighted sum that a format can give.
inline constexpr int CMaiorSoma = 639;

/// How a weighted sum s becomes a check digit; r is s mod 11.
enum TRegraDigito : std::uint8_t {
    rdPadrao,    // 0 when r < 2, else 11 - r
    rdVezesDez,  // s * 10 mod 11; 10 becomes 0
    rdOnze,      // 11 - r; 10 becomes 0 and 11 becomes 1
    rdUltimo,    // the last decimal digit of r
    rdNove,      // s mod 9
    rdDez,       // what is missing to the next multiple of ten
    // Up to here the sum is all that counts.
    rdGoias,      // as rdPadrao, but r = 1 gives 1 within a range of numbers
    rdAmapa,      // by the range of the number
    rdAlgarismos  // as rdDez, but the decimal digits of the products are added up
};

struct TDigitoIE {
    std::size_t Lugar = 0;  // 1 = leftmost
    std::array<std::uint16_t, CMaiorTamanho> Pesos{};
    TRegraDigito Regra = rdPadrao;

    constexpr int CalcularMaiorSoma() const {
        int soma = 0;
        for (const std::uint16_t peso : Pesos) soma += 9 * peso + (Regra == rdAlgarismos);
        return soma;
    }
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
            Valor |= static_cast<std::uint64_t>(*ATexto) << bits;
        }
    }
};

/// The first four characters of AIE, as TInicioIE has them.
inline std::uint64_t LerInicio(const char16_t* AIE) noexcept {
    static_assert(std::endian::native == std::endian::little, "the first character is the lowest");
    std::uint64_t inicio = 0;
    std::memcpy(&inicio, AIE, sizeof inicio);
    return inicio;
}

struct TFormatoIE {
    std::size_t Tamanho = 0;
    std::array<TInicioIE, 5> Inicios{};  // one of them
    TDigitoIE Digito1{}, Digito2{};      // the second one may be missing
};

/// A number is read as its first eight and its last eight characters, which the compiler turns into vectors of
/// registers. No format is shorter; a digit that both blocks have counts in the first one.
inline constexpr std::size_t CBloco = 8;

/// The formats of a unit, laid over the blocks. Of those of one length, which stand together, the first whose start
/// fits decides.
struct TFormatosIE {
    struct TDigito {
        alignas(16) std::array<std::uint16_t, CBloco> PesosDoInicio{};
        alignas(16) std::array<std::uint16_t, CBloco> PesosDoFim{};
        std::uint8_t Indice = 0;
        TRegraDigito Regra = rdPadrao;
    };
    struct TFormato {
        TDigito Digito1, Digito2;  // a format with one check digit has it twice
        std::array<TInicioIE, 5> Inicios{};
        bool Irregular = false;    // the sums are not all that counts
        bool OutroInicio = false;  // the next format is of the same length
    };
    std::array<std::uint8_t, 16> PorTamanho{};  // the first place in Formatos, counted from 1; 0 for none
    std::array<TFormato, 4> Formatos{};

    constexpr TFormatosIE() = default;
    consteval TFormatosIE(std::initializer_list<TFormatoIE> AFormatos) {
        std::uint8_t lugar = 0;
        for (const TFormatoIE& formato : AFormatos) Preparar(++lugar, formato);
    }

private:
    constexpr void Preparar(std::uint8_t ALugar, const TFormatoIE& AFormato) {
        TFormato& formato = Formatos.at(ALugar - 1U);
        if (std::uint8_t& primeiro = PorTamanho[AFormato.Tamanho]; primeiro == 0)
            primeiro = ALugar;
        else
            Formatos[ALugar - 2U].OutroInicio = true;
        formato.Inicios = AFormato.Inicios;
        formato.Digito1 = Preparar(AFormato.Digito1, AFormato.Tamanho);
        formato.Digito2 = AFormato.Digito2.Lugar == 0 ? formato.Digito1 : Preparar(AFormato.Digito2, AFormato.Tamanho);
        formato.Irregular = formato.Digito1.Regra > rdDez || formato.Digito2.Regra > rdDez;
    }
    static constexpr TDigito Preparar(const TDigitoIE& ADigito, std::size_t ATamanho) {
        if (ADigito.CalcularMaiorSoma() > CMaiorSoma) throw "the weights give a larger sum than CMaiorSoma";
        TDigito digito;
        digito.Indice = static_cast<std::uint8_t>(ADigito.Lugar - 1);
        digito.Regra = ADigito.Regra;
        for (std::size_t i = 0; i < ATamanho; ++i)
            (i < CBloco ? digito.PesosDoInicio[i] : digito.PesosDoFim[i + CBloco - ATamanho]) = ADigito.Pesos[i];
        return digito;
    }
};

// Weights are written from the leftmost digit; a 0 skips a digit that takes no part.
// clang-format off
inline constexpr std::array<std::uint16_t, CMaiorTamanho> CDe9A2{9,8,7,6,5,4,3,2};

inline constexpr TFormatosIE CFormatosAC{
    {13, {"01"}, {12, {4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}},
    { 9, {"01"}, { 9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosAL{{9, {""}, {9, CDe9A2, rdVezesDez}}};
inline constexpr TFormatosIE CFormatosAM{{9, {""}, {9, CDe9A2, rdPadrao}}};
// The special ranges end at 03019022.
inline constexpr TFormatosIE CFormatosAP{
    {9, {"0300", "0301"}, {9, CDe9A2, rdAmapa}},
    {9, {"03"},           {9, CDe9A2, rdPadrao}}};
// The second check digit is computed first and takes part, with weight 2, in the first one.
inline constexpr TFormatosIE CFormatosBA{
    {8, {"6", "7", "9"}, {8, {7,6,5,4,3,2},   rdPadrao}, {7, {8,7,6,5,4,3,0,2},   rdPadrao}},
    {8, {""},            {8, {7,6,5,4,3,2},   rdDez},    {7, {8,7,6,5,4,3,0,2},   rdDez}},
    {9, {"6", "7", "9"}, {9, {8,7,6,5,4,3,2}, rdPadrao}, {8, {9,8,7,6,5,4,3,0,2}, rdPadrao}},
    {9, {""},            {9, {8,7,6,5,4,3,2}, rdDez},    {8, {9,8,7,6,5,4,3,0,2}, rdDez}}};
inline constexpr TFormatosIE CFormatosCE{{9, {"0"}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosDF{
    {13, {"07"}, {12, {4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr TFormatosIE CFormatosES{{9, {""}, {9, CDe9A2, rdPadrao}}};
// The special range is 10103105 to 10119997.
inline constexpr TFormatosIE CFormatosGO{
    {9, {"1010", "1011"}, {9, CDe9A2, rdGoias}},
    {9, {""},             {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosMA{{9, {"12"}, {9, CDe9A2, rdPadrao}}};
// The weights 1 and 2 alternate over the digits with a "0" inserted after the third one.
inline constexpr TFormatosIE CFormatosMG{
    {13, {""}, {12, {1,2,1,1,2,1,2,1,2,1,2}, rdAlgarismos}, {13, {3,2,11,10,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr TFormatosIE CFormatosMS{{9, {"28"}, {9, CDe9A2, rdPadrao}}};
// Nine digits stand for eleven with "00" in front.
inline constexpr TFormatosIE CFormatosMT{
    {11, {""}, {11, {3,2,9,8,7,6,5,4,3,2}, rdPadrao}},
    { 9, {""}, { 9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosPA{{9, {"15"}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosPB{{9, {"?6"}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosPE{
    {14, {"18"}, {14, {5,4,3,2,1,9,8,7,6,5,4,3,2}, rdOnze}},
    { 9, {""},     { 8, {8,7,6,5,4,3,2}, rdPadrao}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosPI{{9, {"19"}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosPR{
    {10, {""}, {9, {3,2,7,6,5,4,3,2}, rdPadrao}, {10, {4,3,2,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr TFormatosIE CFormatosRJ{{8, {"1", "7", "8", "9"}, {8, {2,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr TFormatosIE CFormatosRN{{9, {"20"}, {9, CDe9A2, rdVezesDez}}};
inline constexpr TFormatosIE CFormatosRO{
    {14, {""}, {14, {6,5,4,3,2,9,8,7,6,5,4,3,2}, rdOnze}},
    { 9, {""}, { 9, {0,0,0,6,5,4,3,2}, rdOnze}}};
inline constexpr TFormatosIE CFormatosRR{{9, {"24"}, {9, {1,2,3,4,5,6,7,8}, rdNove}}};
inline constexpr TFormatosIE CFormatosRS{{10, {""}, {10, {2,9,8,7,6,5,4,3,2}, rdPadrao}}};
inline constexpr TFormatosIE CFormatosSC{{9, {""}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosSE{{9, {""}, {9, CDe9A2, rdPadrao}}};
inline constexpr TFormatosIE CFormatosSP{
    {12, {""}, {9, {1,3,4,5,6,7,8,10}, rdUltimo}, {12, {3,2,10,9,8,7,6,5,4,3,2}, rdUltimo}}};
// The rural producer's number, after its "P": the last three digits are free.
inline constexpr TFormatosIE CFormatosSPRural{{12, {""}, {9, {1,3,4,5,6,7,8,10}, rdUltimo}}};
// Eleven digits: "29" in front, or a known kind of company in digits 3 and 4; either is enough.
inline constexpr TFormatosIE CFormatosTO{
    {11, {"29", "??01", "??02", "??03", "??99"}, {11, {9,8,0,0,7,6,5,4,3,2}, rdPadrao}},
    { 9, {""}, {9, CDe9A2, rdPadrao}}};
// clang-format on

/// Rule rdPadrao of a remainder of 11.
constexpr int CalcularDigitoPadrao(int AResto) noexcept { return AResto < 2 ? 0 : 11 - AResto; }

/// mrNenhum when AIE is written in the format of its length and its check digits are right. AIE is compared digit by
/// digit, so its leading zeros must be there.
TMotivoRecusa Conferir(const TFormatosIE& AFormatos, std::u16string_view AIE) noexcept;

/// True when every character is a zero.
inline bool SoTemZeros(std::u16string_view AIE) noexcept {
    constexpr TInicioIE CZeros("0000");
    // One question, nearly always with the same answer, spares the rest.
    if (AIE.size() >= 4 && LerInicio(AIE.data()) != CZeros.Valor) return false;
    return std::ranges::all_of(AIE, [](char16_t c) { return c == u'0'; });
}

}  // namespace OryUtils::RegrasIE
