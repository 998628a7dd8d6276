#pragma once

#include <algorithm>
#include <bitset>
#include <string>
#include <string_view>

namespace OryUtils::Interno {

/// Answers quickly whether a character is one of a text's, however long that text is.
class TPertinencia {
public:
    explicit TPertinencia(std::u16string_view ACaracteres) {
        for (const char16_t c : ACaracteres) {
            if (c < FBaixos.size())
                FBaixos.set(c);
            else
                FAltos += c;
        }
        std::sort(FAltos.begin(), FAltos.end());
        FAltos.erase(std::unique(FAltos.begin(), FAltos.end()), FAltos.end());
    }
    bool Contem(char16_t ACaractere) const {
        return ACaractere < FBaixos.size() ? FBaixos.test(ACaractere)
                                           : std::binary_search(FAltos.begin(), FAltos.end(), ACaractere);
    }

private:
    std::bitset<256> FBaixos;
    std::u16string FAltos;  // in ascending order
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
