#pragma once

#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"

/// The state registrations in force, with their masks. RegrasIE.hpp has the laxer rules of the older operation.
namespace OryUtils::Interno {

// clang-format off
inline constexpr TPesos CW9{9,8,7,6,5,4,3,2};
/// 11 less the remainder; 11 becomes 1 and 10 becomes 0.
inline constexpr TRegraDigito COnzeViraUm{"10987654321"};

inline constexpr TFormatoDocumento CIeAC[]{
    {13, {"01"}, {{12, {4,3,2,9,8,7,6,5,4,3,2}}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}}}, "00.000.000/000-00"}};
inline constexpr TFormatoDocumento CIeAL[]{{9, {"24"}, {{9, CW9}}}};
inline constexpr TFormatoDocumento CIeAM[]{{9, {}, {{9, CW9}}, "00.000.000-0"}};
inline constexpr TFormatoDocumento CIeAP[]{
    {9, {"03000001-03017000"}, {{9, CW9, {.Acrescimo = 5}}}},
    {9, {"03017001-03019022"}, {{9, CW9, {.DoResto = "10987654321", .Acrescimo = 9}}}},
    {9, {"03019023-03999999"}, {{9, CW9}}}};
// The last digit is computed first and takes part, with weight 2, in the one before it. The digit that decides on the
// modulus is the first of eight and the second of nine.
inline constexpr TFormatoDocumento CIeBA[]{
    {8, {"6-7 9"},        {{8, {7,6,5,4,3,2}},              {7, {8,7,6,5,4,3,0,2}}},              "000000-00"},
    {8, {"0-5 8"},        {{8, {7,6,5,4,3,2}, CModulo10},   {7, {8,7,6,5,4,3,0,2}, CModulo10}},   "000000-00"},
    {9, {{"6-7 9", 2}},   {{9, {8,7,6,5,4,3,2}},            {8, {9,8,7,6,5,4,3,0,2}}},            "0000000-00"},
    {9, {{"0-5 8", 2}},   {{9, {8,7,6,5,4,3,2}, CModulo10}, {8, {9,8,7,6,5,4,3,0,2}, CModulo10}}, "0000000-00"}};
inline constexpr TFormatoDocumento CIeCE[]{{9, {}, {{9, CW9}}, "00000000-0"}};
inline constexpr TFormatoDocumento CIeDF[]{
    {13, {"07-09"}, {{12, {4,3,2,9,8,7,6,5,4,3,2}}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}}}, "00000000000-00"}};
inline constexpr TFormatoDocumento CIeES[]{{9, {}, {{9, CW9}}, "00000000-0"}};
// In a range both 0 and 1 are right where the remainder is 1.
inline constexpr TFormatoDocumento CIeGO[]{
    {9, {"10-11 15 20-29"},    {{9, CW9}},                  "00.000.000-0"},
    {9, {"10103105-10119997"}, {{9, CW9, {"01987654321"}}}, "00.000.000-0"}};
inline constexpr TFormatoDocumento CIeMA[]{{9, {"12"}, {{9, CW9}}, "00000000-0"}};
// The weights 1 and 2 alternate over the digits with a "0" put after the third one.
inline constexpr TFormatoDocumento CIeMG[]{
    {13, {}, {{12, {1,2,1,1,2,1,2,1,2,1,2}, {CModulo10.DoResto, paAlgarismos}}, {13, {3,2,11,10,9,8,7,6,5,4,3,2}}},
     "000.000.000/0000"}};
inline constexpr TFormatoDocumento CIeMS[]{{9, {"28 50"}, {{9, CW9}}, "00.000.000-0"}};
// Nine digits are eleven without the two zeros in front.
inline constexpr TFormatoDocumento CIeMT[]{{11, {}, {{11, {3,2,9,8,7,6,5,4,3,2}}}, "0000000000-0"}, {9, {}, {{9, CW9}}}};
inline constexpr TFormatoDocumento CIePA[]{{9, {"15 75-79"}, {{9, CW9}}, "00.000.000-0"}};
inline constexpr TFormatoDocumento CIePB[]{{9, {}, {{9, CW9}}, "00000000-0"}};
inline constexpr TFormatoDocumento CIePE[]{
    { 9, {},     {{ 8, {8,7,6,5,4,3,2}}, {9, CW9}},                       "0000000-00"},
    {14, {"18"}, {{14, {5,4,3,2,1,9,8,7,6,5,4,3,2}, COnzeViraUm}},        "00.0.000.0000000-0"}};
inline constexpr TFormatoDocumento CIePI[]{{9, {}, {{9, CW9}}}};
inline constexpr TFormatoDocumento CIePR[]{
    {10, {}, {{9, {3,2,7,6,5,4,3,2}}, {10, {4,3,2,7,6,5,4,3,2}}}, "000.00000-00"}};
inline constexpr TFormatoDocumento CIeRJ[]{{8, {}, {{8, {2,7,6,5,4,3,2}}}, "00.000.00-0"}};
inline constexpr TFormatoDocumento CIeRN[]{
    { 9, {"20"}, {{ 9, CW9}},                     "00.000.000-0"},
    {10, {"20"}, {{10, {10,9,8,7,6,5,4,3,2}}},    "00.0.000.000-0"}};
inline constexpr TFormatoDocumento CIeRO[]{
    {14, {}, {{14, {6,5,4,3,2,9,8,7,6,5,4,3,2}, COnzeViraUm}}, "0000000000000-0"},
    { 9, {}, {{ 9, {0,0,0,6,5,4,3,2}, COnzeViraUm}},           "000.00000-0"}};
inline constexpr TFormatoDocumento CIeRR[]{{9, {"24"}, {{9, {1,2,3,4,5,6,7,8}, {"012345678"}}}, "00000000-0"}};
inline constexpr TFormatoDocumento CIeRS[]{{10, {}, {{10, {2,9,8,7,6,5,4,3,2}}}, "000/0000000"}};
inline constexpr TFormatoDocumento CIeSC[]{{9, {}, {{9, CW9}}, "000.000.000"}};
inline constexpr TFormatoDocumento CIeSE[]{{9, {}, {{9, CW9}}, "00000000-0"}};
inline constexpr TFormatoDocumento CIeSP[]{
    {12, {}, {{9, {1,3,4,5,6,7,8,10}, CResto11}, {12, {3,2,10,9,8,7,6,5,4,3,2}, CResto11}}, "000.000.000.000"}};
/// Of a rural producer, after its "P". The last three digits are free.
inline constexpr TFormatoDocumento CIeProdutorSP[]{{12, {}, {{9, {1,3,4,5,6,7,8,10}, CResto11}}, "P-00000000.0/000"}};
inline constexpr TFormatoDocumento CIeTO[]{
    { 9, {},                {{ 9, CW9}},                   "00.000.000-0"},
    {11, {{"01-03 99", 3}}, {{11, {9,8,0,0,7,6,5,4,3,2}}}, "00.00.000000-0"}};
// clang-format on

}  // namespace OryUtils::Interno
