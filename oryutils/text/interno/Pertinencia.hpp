#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Answers whether a character is one of a text's, in a time that hardly grows with that text.
class TPertinencia {
public:
    explicit TPertinencia(std::u16string_view ACaracteres) : FCaracteres(ACaracteres) {
        std::sort(FCaracteres.begin(), FCaracteres.end());
    }
    bool Contem(char16_t ACaractere) const {
        return std::binary_search(FCaracteres.begin(), FCaracteres.end(), ACaractere);
    }

private:
    std::u16string FCaracteres;  // in ascending order
};

/// The characters of ATexto that APredicado keeps.
template <typename TPredicado>
std::u16string Filtrar(std::u16string_view ATexto, TPredicado APredicado) {
    std::u16string resultado;
    resultado.reserve(ATexto.size());
    for (const char16_t c : ATexto)
        if (APredicado(c)) resultado += c;
    return resultado;
}

}  // namespace OryUtils::Interno
