#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>

namespace OryUtils {

/// True when the enumeration has an enumerator with the value AValor. The compiler names such a value "mbYes" in the
/// name of this function, and a value without an enumerator "(TMsgDlgBtn)12".
template <auto AValor>
consteval bool EhEnumerador() {
    constexpr std::string_view CMarca = "AValor = ";
    const std::string_view funcao = __PRETTY_FUNCTION__;
    return funcao[funcao.find(CMarca) + CMarca.size()] != '(';
}

/// True when ATabela, an array of rows, has one row for each enumerator of the enumeration of its member AChave, in the
/// order of the ordinals from 0, and the enumeration has no enumerator behind the last row.
/// Example:  static_assert(CobreEnumeracao<CBotoes, &TDadosBotao::Tipo>());
template <const auto& ATabela, auto AChave>
consteval bool CobreEnumeracao() {
    using TEnumeracao = std::remove_cvref_t<decltype(ATabela[0].*AChave)>;
    for (std::size_t i = 0; i < ATabela.size(); ++i)
        if (ATabela[i].*AChave != static_cast<TEnumeracao>(i)) return false;
    return !EhEnumerador<static_cast<TEnumeracao>(ATabela.size())>();
}

/// One column of ATabela, an array of rows.
/// Example:  constexpr auto CNomes = BuscarColuna<CBotoes, &TDadosBotao::Nome>();
template <const auto& ATabela, auto AMembro>
consteval auto BuscarColuna() {
    std::array<std::remove_cvref_t<decltype(ATabela[0].*AMembro)>, ATabela.size()> coluna{};
    for (std::size_t i = 0; i < coluna.size(); ++i) coluna[i] = ATabela[i].*AMembro;
    return coluna;
}

}  // namespace OryUtils
