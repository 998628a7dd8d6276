#include "oryutils/forms/win32/interno/TextoNativo.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

constexpr std::u16string_view CQuebraSuave = u"\r\r\n";
constexpr std::size_t CMaiorParagrafo = 1024;

}  // namespace

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

std::u16string ParaMemorando(std::u16string_view ATexto) {
    const std::u16string nativo = ParaNativo(ATexto);
    std::u16string memorando;
    memorando.reserve(nativo.size() + nativo.size() / CMaiorParagrafo * CQuebraSuave.size());
    std::u16string_view resto = nativo;
    while (!resto.empty()) {
        const std::size_t quebra = resto.find(u"\r\n");
        const std::size_t fim = quebra == resto.npos ? resto.size() : quebra + 2;
        std::u16string_view paragrafo = resto.substr(0, fim);
        resto.remove_prefix(fim);
        while (paragrafo.size() > CMaiorParagrafo) {
            const std::size_t branco = paragrafo.rfind(u' ', CMaiorParagrafo - 1);
            const std::size_t trecho = branco == paragrafo.npos ? CMaiorParagrafo : branco + 1;
            memorando += paragrafo.substr(0, trecho);
            paragrafo.remove_prefix(trecho);
            // A line break takes no soft one before it.
            if (paragrafo != u"\r\n") memorando += CQuebraSuave;
        }
        memorando += paragrafo;
    }
    return memorando;
}

std::u16string DeNativo(std::u16string_view ATexto, std::u16string_view AModelo) {
    const bool soLf = AModelo.find(u'\n') != AModelo.npos && AModelo.find(u'\r') == AModelo.npos;
    std::u16string texto;
    texto.reserve(ATexto.size());
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        if (ATexto.substr(i, CQuebraSuave.size()) == CQuebraSuave) {
            i += CQuebraSuave.size() - 1;
        } else if (!soLf || ATexto[i] != u'\r') {
            texto += ATexto[i];
        }
    }
    return texto;
}

std::u16string LerTexto(HWND AJanela) {
    std::u16string texto(static_cast<std::size_t>(::GetWindowTextLengthW(AJanela)), u'\0');
    // One place more: the system always writes a terminator, and a string holds one past its end.
    const int lidos = ::GetWindowTextW(AJanela, Interno::ParaWide(texto.data()), static_cast<int>(texto.size()) + 1);
    texto.resize(static_cast<std::size_t>(std::max(lidos, 0)));
    return texto;
}

void EscreverTexto(HWND AJanela, std::u16string_view ATexto) {
    ::SetWindowTextW(AJanela, Interno::ParaWide(ParaNativo(ATexto)));
}

}  // namespace OryUtils::Interno
