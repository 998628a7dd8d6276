#pragma once

#include <string_view>

namespace OryUtils::Interno {

/// The three fields of an edit mask. A ";" behind "\" belongs to the pattern.
struct TCampos {
    std::u16string_view Padrao, Literais, Branco;
};

constexpr bool EhControle(char16_t ACaractere) {
    return ACaractere < u' ' || (ACaractere >= 0x7F && ACaractere <= 0x9F);
}

constexpr TCampos Separar(std::u16string_view AMascara) {
    TCampos campos;
    std::size_t fim = 0;
    while (fim < AMascara.size() && AMascara[fim] != u';') fim += AMascara[fim] == u'\\' ? 2 : 1;
    campos.Padrao = AMascara.substr(0, fim);
    if (fim >= AMascara.size()) return campos;
    const std::u16string_view resto = AMascara.substr(fim + 1);
    const std::size_t meio = resto.find(u';');
    campos.Literais = resto.substr(0, meio);
    if (meio != resto.npos) campos.Branco = resto.substr(meio + 1);
    return campos;
}

}  // namespace OryUtils::Interno
