#include "mensagem/Resposta.hpp"

#include "oryutils/characters/Utf.hpp"

#include <string>

namespace Ory {

void EscreverLinha(TAmbiente& AAmbiente, std::u16string_view ATexto) {
    std::u16string linha;
    for (std::size_t i = 0; i < ATexto.size(); ++i) {
        const bool quebra = ATexto[i] == u'\r' || ATexto[i] == u'\n';
        if (ATexto[i] == u'\n' && i > 0 && ATexto[i - 1] == u'\r') continue;
        linha += quebra ? u' ' : ATexto[i];
    }
    AAmbiente.Saida.Escrever(OryUtils::ParaUtf8(linha) + "\n");
}

int RecusarSemQuemResponda(TAmbiente& AAmbiente) {
    AAmbiente.Erro.Escrever("ory: não há tela nem terminal para perguntar\n");
    return smSemQuemResponda;
}

}  // namespace Ory
