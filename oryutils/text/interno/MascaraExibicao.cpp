#include "oryutils/text/interno/MascaraExibicao.hpp"

namespace OryUtils::Interno {

std::u16string FormatarComMascara(std::u16string_view AMascara, std::u16string_view ANumero) {
    std::u16string resultado;
    std::size_t usados = 0;
    for (std::size_t i = 0; i < AMascara.size() && AMascara[i] != u';'; ++i) {
        if (AMascara[i] == u'#') {
            resultado += usados < ANumero.size() ? ANumero[usados++] : u' ';
            continue;
        }
        if (AMascara[i] == u'\\' && i + 1 < AMascara.size()) ++i;
        resultado += AMascara[i];
    }
    return resultado.append(ANumero.substr(usados));
}

}  // namespace OryUtils::Interno
