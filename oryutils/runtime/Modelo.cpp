#include "oryutils/runtime/Modelo.hpp"

namespace OryUtils {

std::u16string PreencherModelo(std::u16string_view AModelo, std::initializer_list<std::u16string_view> AValores) {
    std::size_t tamanho = AModelo.size();
    for (const std::u16string_view valor : AValores) tamanho += valor.size();
    std::u16string texto;
    texto.reserve(tamanho);
    const auto* valor = AValores.begin();
    for (;;) {
        const std::size_t lugar = AModelo.find(u'%');
        texto += AModelo.substr(0, lugar);
        if (lugar == std::u16string_view::npos) return texto;
        const char16_t tipo = lugar + 1 < AModelo.size() ? AModelo[lugar + 1] : u'\0';
        if ((tipo == u's' || tipo == u'd') && valor != AValores.end()) {
            texto += *valor++;
        } else {
            texto += u'%';
            if (tipo != u'%') {
                AModelo.remove_prefix(lugar + 1);
                continue;
            }
        }
        AModelo.remove_prefix(lugar + 2);
    }
}

}  // namespace OryUtils
