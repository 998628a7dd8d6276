#include "oryutils/forms/console/TextoDoTerminal.hpp"

#include <algorithm>

namespace OryUtils::Interno {
namespace {

bool EhComando(char16_t ACaractere) {
    const bool controle = ACaractere < u' ' || (ACaractere >= 0x7F && ACaractere <= 0x9F);
    const bool direcao =
        (ACaractere >= 0x202A && ACaractere <= 0x202E) || (ACaractere >= 0x2066 && ACaractere <= 0x2069);
    return controle || direcao;
}

std::u16string SemComandos(std::u16string_view ATexto) {
    std::u16string resultado;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        if (ATexto[i] == u'\r') {
            if (i + 1 == ATexto.size() || ATexto[i + 1] != u'\n') resultado += u'\n';
        } else if (ATexto[i] == u'\t') {
            resultado += u' ';
        } else {
            resultado += ATexto[i] != u'\n' && EhComando(ATexto[i]) ? u'?' : ATexto[i];
        }
    }
    return resultado;
}

}  // namespace

std::u16string ParaTerminal(std::u16string_view ATexto, int AColunas) {
    std::u16string texto = SemComandos(ATexto);
    if (AColunas <= 0) return texto;
    const auto colunas = static_cast<std::size_t>(AColunas);
    std::size_t linha = 0;
    while (texto.size() - linha > colunas) {
        const std::size_t fim = texto.find(u'\n', linha);
        if (fim <= linha + colunas) {
            linha = fim + 1;
            continue;
        }
        // The last blank that lets the line fit, else the first one behind the long word.
        std::size_t branco = texto.rfind(u' ', linha + colunas);
        if (branco == texto.npos || branco <= linha) branco = texto.find_first_of(u" \n", linha + 1);
        if (branco == texto.npos) return texto;
        texto[branco] = u'\n';
        linha = branco + 1;
    }
    return texto;
}

}  // namespace OryUtils::Interno
