#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <algorithm>

namespace OryUtils::Win32 {

std::u16string ParaNativo(std::u16string_view ATexto) {
    std::u16string nativo;
    nativo.reserve(ATexto.size() + 16);
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const char16_t c = ATexto[i];
        if (c == u'\r' || c == u'\n') {
            if (c == u'\r' && i + 1 < ATexto.size() && ATexto[i + 1] == u'\n') ++i;
            nativo += u"\r\n";
        } else {
            nativo += c == u'\0' ? u' ' : c;
        }
    }
    return nativo;
}

std::u16string DeNativo(std::u16string_view ATexto, std::u16string_view AModelo) {
    std::u16string texto(ATexto);
    const bool soLf = AModelo.find(u'\n') != AModelo.npos && AModelo.find(u'\r') == AModelo.npos;
    if (soLf) std::erase(texto, u'\r');
    return texto;
}

std::u16string LerTexto(HWND AJanela) {
    std::u16string texto(static_cast<std::size_t>(::GetWindowTextLengthW(AJanela)), u'\0');
    // One place more: the system always writes a terminator, and a string holds one past its end.
    const int lidos = ::GetWindowTextW(AJanela, Plataforma::ParaWide(texto.data()), static_cast<int>(texto.size()) + 1);
    texto.resize(static_cast<std::size_t>(std::max(lidos, 0)));
    return texto;
}

void EscreverTexto(HWND AJanela, std::u16string_view ATexto) {
    ::SetWindowTextW(AJanela, Plataforma::ParaWide(ParaNativo(ATexto)));
}

}  // namespace OryUtils::Win32
