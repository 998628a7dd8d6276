#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OryUtils::Interno {

/// Case and accents do not count: "nao" answers "Não".
bool SaoIguaisNaConversa(std::u16string_view ATexto, std::u16string_view AResposta);

/// What a person answered to a list: the items, or what to tell before the list is asked for again.
struct TRespostaDeLista {
    std::vector<int> Escolhidos{};
    std::u16string Recusa{};
};

/// An item by its number from 1, by its text, or by a part of its text that no other one has; AVarios takes several
/// with "," between them, and "2-5" for a row of them. Case and accents do not count. A part that several items have is
/// answered with these.
TRespostaDeLista LerRespostaDeLista(const std::vector<std::u16string>& AItens, bool AVarios,
                                    std::u16string_view AResposta);

}  // namespace OryUtils::Interno
