#include "TextoNaTela.hpp"

#include "oryutils/characters/Utf.hpp"

#include <algorithm>

namespace Ory {

std::size_t ContarCaracteres(std::string_view ATexto) {
    return static_cast<std::size_t>(std::count_if(
        ATexto.begin(), ATexto.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string ParaATela(std::u16string_view ATexto, std::size_t AMaior) {
    std::u16string texto(ATexto);
    for (char16_t& c : texto) {
        const bool direcao =
            (c >= 0x200E && c <= 0x200F) || (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
        if (c < 0x20 || (c >= 0x7F && c < 0xA0) || direcao) c = u'·';
    }
    if (texto.size() > AMaior) {
        texto.resize(AMaior);
        texto.back() = u'…';
    }
    return OryUtils::ParaUtf8(texto);
}

std::string ADireita(std::string_view ATexto, std::size_t ALargura) {
    const std::size_t tamanho = ContarCaracteres(ATexto);
    return std::string(ALargura > tamanho ? ALargura - tamanho : 0, ' ') + std::string(ATexto);
}

std::string AEsquerda(std::string_view ATexto, std::size_t ALargura) {
    const std::size_t tamanho = ContarCaracteres(ATexto);
    return std::string(ATexto) + std::string(ALargura > tamanho ? ALargura - tamanho : 0, ' ');
}

}  // namespace Ory
