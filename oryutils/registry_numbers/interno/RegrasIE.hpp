#pragma once

#include "oryutils/registry_numbers/interno/RegraDeDocumento.hpp"

/// The formats of the state registrations of each federative unit.
namespace OryUtils::Interno {

// clang-format off
inline constexpr TPesos CDe9A2{9,8,7,6,5,4,3,2};

inline constexpr TFormatoDocumento CFormatosAC[]{
    {13, {"01"}, {{12, {4,3,2,9,8,7,6,5,4,3,2}}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}}}},
    { 9, {"01"}, {{ 9, CDe9A2}}}};
/// AL, AM, ES, SC and SE: nine digits, whatever the first ones.
inline constexpr TFormatoDocumento CFormatosNoveDigitos[]{{9, {}, {{9, CDe9A2}}}};
// No digit is right for the number before the first range.
inline constexpr TFormatoDocumento CFormatosAP[]{
    {9, {"03000000"},          {{9, CDe9A2, {.DoResto = "-0987654321", .Acrescimo = 9}}}},
    {9, {"03000001-03017000"}, {{9, CDe9A2, {.Acrescimo = 5}}}},
    {9, {"03017001-03019022"}, {{9, CDe9A2, {.DoResto = "10987654321", .Acrescimo = 9}}}},
    {9, {"03019023-03999999"}, {{9, CDe9A2}}}};
// The last digit is computed first and takes part, with weight 2, in the one before it.
inline constexpr TFormatoDocumento CFormatosBA[]{
    {8, {"6-7 9"}, {{8, {7,6,5,4,3,2}},              {7, {8,7,6,5,4,3,0,2}}}},
    {8, {"0-5 8"}, {{8, {7,6,5,4,3,2}, CModulo10},   {7, {8,7,6,5,4,3,0,2}, CModulo10}}},
    {9, {"6-7 9"}, {{9, {8,7,6,5,4,3,2}},            {8, {9,8,7,6,5,4,3,0,2}}}},
    {9, {"0-5 8"}, {{9, {8,7,6,5,4,3,2}, CModulo10}, {8, {9,8,7,6,5,4,3,0,2}, CModulo10}}}};
inline constexpr TFormatoDocumento CFormatosCE[]{{9, {"0"}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosDF[]{
    {13, {"07"}, {{12, {4,3,2,9,8,7,6,5,4,3,2}}, {13, {5,4,3,2,9,8,7,6,5,4,3,2}}}}};
inline constexpr TFormatoDocumento CFormatosGO[]{
    {9, {"10103105-10119997"},                   {{9, CDe9A2, {"01987654321"}}}},
    {9, {"00000000-10103104 10119998-99999999"}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosMA[]{{9, {"12"}, {{9, CDe9A2}}}};
// The weights 1 and 2 alternate over the digits with a "0" put after the third one.
inline constexpr TFormatoDocumento CFormatosMG[]{
    {13, {}, {{12, {1,2,1,1,2,1,2,1,2,1,2}, {CModulo10.DoResto, paAlgarismos}},
              {13, {3,2,11,10,9,8,7,6,5,4,3,2}}}}};
inline constexpr TFormatoDocumento CFormatosMS[]{{9, {"28"}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosMT[]{{11, {}, {{11, {3,2,9,8,7,6,5,4,3,2}}}}};
inline constexpr TFormatoDocumento CFormatosPA[]{{9, {"15"}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosPB[]{{9, {{"6", 2}}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosPE[]{
    {14, {"18"}, {{14, {5,4,3,2,1,9,8,7,6,5,4,3,2}, {"10987654321"}}}},
    { 9, {},     {{ 8, {8,7,6,5,4,3,2}}, {9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosPI[]{{9, {"19"}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosPR[]{
    {10, {}, {{9, {3,2,7,6,5,4,3,2}}, {10, {4,3,2,7,6,5,4,3,2}}}}};
inline constexpr TFormatoDocumento CFormatosRJ[]{{8, {"1 7-9"}, {{8, {2,7,6,5,4,3,2}}}}};
inline constexpr TFormatoDocumento CFormatosRN[]{{9, {"20"}, {{9, CDe9A2}}}};
inline constexpr TFormatoDocumento CFormatosRO[]{
    {14, {}, {{14, {6,5,4,3,2,9,8,7,6,5,4,3,2}, {"10987654321"}}}},
    { 9, {}, {{ 9, {0,0,0,6,5,4,3,2}, {"10987654321"}}}}};
inline constexpr TFormatoDocumento CFormatosRR[]{{9, {"24"}, {{9, {1,2,3,4,5,6,7,8}, {"012345678"}}}}};
inline constexpr TFormatoDocumento CFormatosRS[]{{10, {}, {{10, {2,9,8,7,6,5,4,3,2}}}}};
inline constexpr TFormatoDocumento CFormatosSP[]{
    {12, {}, {{9, {1,3,4,5,6,7,8,10}, CResto11}, {12, {3,2,10,9,8,7,6,5,4,3,2}, CResto11}}}};
/// The number of a rural producer, after its "P". Its last three digits are free.
inline constexpr TFormatoDocumento CFormatosSPRural[]{{12, {}, {{9, {1,3,4,5,6,7,8,10}, CResto11}}}};
// Eleven digits start with "29" or have a known kind of company in digits 3 and 4.
inline constexpr TFormatoDocumento CFormatosTO[]{
    {11, {"29"},            {{11, {9,8,0,0,7,6,5,4,3,2}}}},
    {11, {{"01-03 99", 3}}, {{11, {9,8,0,0,7,6,5,4,3,2}}}},
    { 9, {},                {{ 9, CDe9A2}}}};
// clang-format on

}  // namespace OryUtils::Interno
