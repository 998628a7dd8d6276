#pragma once

#include "oryutils/registry_numbers/interno/RegrasIEEmVigor.hpp"

#include <algorithm>
#include <span>
#include <string_view>

/// The federative units: what documents say of them.
namespace OryUtils::Interno {

struct TUnidadeFederativa {
    std::string_view Sigla;
    std::string_view Codigo;  // of the national statistics office
    TExigencia Ceps;          // the first five digits
    std::span<const TFormatoDocumento> Inscricoes;
};

// clang-format off
inline constexpr TUnidadeFederativa CUnidadesFederativas[]{
    {"AC", "12", {"69900-69999"},             CIeAC}, {"AL", "27", {"57000-57999"},             CIeAL},
    {"AM", "13", {"69000-69299 69400-69899"}, CIeAM}, {"AP", "16", {"68900-68999"},             CIeAP},
    {"BA", "29", {"40000-48999"},             CIeBA}, {"CE", "23", {"60000-63999"},             CIeCE},
    {"DF", "53", {"70000-72799 73000-73699"}, CIeDF}, {"ES", "32", {"29000-29999"},             CIeES},
    {"GO", "52", {"72800-72999 73700-76799"}, CIeGO}, {"MA", "21", {"65000-65999"},             CIeMA},
    {"MG", "31", {"30000-39999"},             CIeMG}, {"MS", "50", {"79000-79999"},             CIeMS},
    {"MT", "51", {"78000-78899"},             CIeMT}, {"PA", "15", {"66000-68899"},             CIePA},
    {"PB", "25", {"58000-58999"},             CIePB}, {"PE", "26", {"50000-56999"},             CIePE},
    {"PI", "22", {"64000-64999"},             CIePI}, {"PR", "41", {"80000-87999"},             CIePR},
    {"RJ", "33", {"20000-28999"},             CIeRJ}, {"RN", "24", {"59000-59999"},             CIeRN},
    {"RO", "11", {"76800-76999"},             CIeRO}, {"RR", "14", {"69300-69399"},             CIeRR},
    {"RS", "43", {"90000-99999"},             CIeRS}, {"SC", "42", {"88000-89999"},             CIeSC},
    {"SE", "28", {"49000-49999"},             CIeSE}, {"SP", "35", {"01000-19999"},             CIeSP},
    {"TO", "17", {"77000-77999"},             CIeTO}};
// clang-format on

constexpr const TUnidadeFederativa* BuscarUfPorCodigo(std::string_view ACodigo) noexcept {
    const auto uf = std::ranges::find(CUnidadesFederativas, ACodigo, &TUnidadeFederativa::Codigo);
    return uf == std::end(CUnidadesFederativas) ? nullptr : uf;
}

}  // namespace OryUtils::Interno
