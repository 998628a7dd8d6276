#pragma once

#include "oryutils/registry_numbers/interno/CpfCnpj.hpp"

/// Documents that the table language says whole.
namespace OryUtils::Interno {

// clang-format off
inline constexpr TFormatoDocumento CNumeroCpf[]{CFormatoCpf};
inline constexpr TFormatoDocumento CNumeroCnpj[]{CFormatoCnpj};
inline constexpr TFormatoDocumento CNumeroPis[]{{11, {}, {{11, {3,2,9,8,7,6,5,4,3,2}}}, "000.00000.00-0"}};
/// CEI and CNO.
inline constexpr TFormatoDocumento CNumeroCei[]{
    {12, {}, {{12, {7,4,1,8,5,2,1,6,3,7,4}, {CModulo10.DoResto, paDezenaEUnidade}}}, "00.000.00000/00"}};
// Nine digits are eleven without the two zeros in front.
inline constexpr TFormatoDocumento CNumeroRenavam[]{
    {11, {}, {{11, {3,2,9,8,7,6,5,4,3,2}}}}, {9, {}, {{9, {9,8,7,6,5,4,3,2}}}}};
// São Paulo (01) and Minas Gerais (02) write 1 where the remainder is 0.
inline constexpr TFormatoDocumento CNumeroTitulo[]{
    {12, {{"03-28", 9}}, {{11, {2,3,4,5,6,7,8,9}, {"01234567890"}}, {12, {0,0,0,0,0,0,0,0,7,8,9}, {"01234567890"}}}, "0000 0000 0000"},
    {12, {{"01-02", 9}}, {{11, {2,3,4,5,6,7,8,9}, {"11234567890"}}, {12, {0,0,0,0,0,0,0,0,7,8,9}, {"11234567890"}}}, "0000 0000 0000"}};
// Of the numbers that start with 1 or 2, those whose digit would be 10 have 001 before a digit that is always 8.
inline constexpr TFormatoDocumento CNumeroCns[]{
    {15, {"7-9"},                {{15, {15,14,13,12,11,10,9,8,7,6,5,4,3,2}, {"0-987654321"}}}, "000 0000 0000 0000"},
    {15, {"1-2", {"000", 12}},   {{15, {15,14,13,12,11,10,9,8,7,6,5},       {"0-987654321"}}}, "000 0000 0000 0000"},
    {15, {"1-2", {"001", 12}},   {{15, {15,14,13,12,11,10,9,8,7,6,5},       {"-8---------"}}}, "000 0000 0000 0000"}};
inline constexpr TFormatoDocumento CNumeroMunicipio[]{
    {7, {"11-17 21-29 31-33 35 41-43 50-53"}, {{7, {1,2,1,2,1,2}, {CModulo10.DoResto, paAlgarismos}}}}};
inline constexpr TFormatoDocumento CNumeroGtin[]{
    { 8, {}, {{ 8, {3,1,3,1,3,1,3}, CModulo10}}},
    {12, {}, {{12, {3,1,3,1,3,1,3,1,3,1,3}, CModulo10}}},
    {13, {}, {{13, {1,3,1,3,1,3,1,3,1,3,1,3}, CModulo10}}},
    {14, {}, {{14, {3,1,3,1,3,1,3,1,3,1,3,1,3}, CModulo10}}}};
inline constexpr TFormatoDocumento CNumeroNcm[]{{8, {"01-76 78-97"}, {}, "0000.00.00"}};
inline constexpr TFormatoDocumento CNumeroCfop[]{
    {4, {"11-16 19 21-26 29 31-33 35-36 39 51-56 59 61-66 69 71-73 75-76 79", {"01-49 51-99", 3}}, {}, "0.000"}};
inline constexpr TFormatoDocumento CNumeroCest[]{{7, {"01-28", {"001-999", 3}}, {}, "00.000.00"}};
inline constexpr TFormatoDocumento CNumeroCnae[]{
    {7, {"01-03 05-33 35-39 41-43 45-47 49-53 55-56 58-66 68-75 77-82 84-88 90-97 99"}, {}, "0000-0/00"}};
// clang-format on

}  // namespace OryUtils::Interno
