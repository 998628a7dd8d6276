#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// The four numbers of a version, the major one in the highest 16 bits: keys stand to each other as versions do.
using TChaveDeVersao = std::uint64_t;

/// The key of AVersao, in which "," counts as ".". Raises EConvertError as TOryUtilsFiles::DividirVersao does.
TChaveDeVersao BuscarChaveDeVersao(std::u16string_view AVersao);

/// TOryUtilsFiles::OrdenarListaDeVersoes.
void OrdenarVersoes(std::vector<std::u16string>& AVersoes);

}  // namespace OryUtils::Interno
